#include "platform/linux/input/X11LoneModifiers.h"

#include "platform/linux/input/X11TapSessionFixture.h"

namespace brindlex {
namespace {

class X11LoneModifiersTest : public X11TapSessionTest {
protected:
    /// Clicks with the middle button while the key is held; what the application gets.
    Lines clickWhileHolding(std::uint8_t key)
    {
        desktop_.keyboard.press(key);
        desktop_.settle();
        desktop_.mouse.click(2);
        desktop_.settle();
        desktop_.keyboard.release(key);
        desktop_.settle();
        return desktop_.window.lines();
    }
};

TEST_F(X11LoneModifiersTest, haveCompanyWhereWhatTheyWereForIsSwallowed)
{
    tap(middleButton(), EventVerdict::swallow);

    EXPECT_EQ(clickWhileHolding(keycode::alt),
        (Lines{"key 64 down", "key 248 down (alt)", "key 248 up (alt)", "key 64 up (alt)"}));
    desktop_.window.forget();
    EXPECT_EQ(clickWhileHolding(keycode::super),
        (Lines{
            "key 133 down", "key 248 down (super)", "key 248 up (super)", "key 133 up (super)"}));
}

TEST_F(X11LoneModifiersTest, haveCompanyWhereANotchIsSwallowed)
{
    tap({wheel, EventTriggers{.wheel = true}}, EventVerdict::swallow);
    desktop_.keyboard.press(keycode::alt);
    desktop_.settle();
    desktop_.mouse.turnWheel(1);
    desktop_.settle();
    desktop_.keyboard.release(keycode::alt);
    desktop_.settle();

    EXPECT_TRUE(desktop_.receives(
        {"key 64 down", "key 248 down (alt)", "key 248 up (alt)", "key 64 up (alt)"}));
}

TEST_F(X11LoneModifiersTest, haveTheClickForCompanyWhereItPasses)
{
    tap(middleButton());

    EXPECT_EQ(clickWhileHolding(keycode::alt),
        (Lines{"key 64 down", "press 2 (alt)", "release 2 (alt)", "key 64 up (alt)"}));
}

TEST_F(X11LoneModifiersTest, areOnlyThoseThatApplicationsActOn)
{
    tap(middleButton(), EventVerdict::swallow);

    EXPECT_EQ(clickWhileHolding(keycode::control), (Lines{"key 37 down", "key 37 up (control)"}));
    EXPECT_EQ(actingAlone(eventFlag::shift | eventFlag::control | eventFlag::capsLock), 0U);
}

TEST_F(X11LoneModifiersTest, haveCompanyWhileTheyAreReleasedForAKeystroke)
{
    desktop_.keyboard.press(keycode::alt);
    desktop_.settle();

    for (const auto type : {EventType::keyDown, EventType::keyUp})
        desktop_.posting.post(
            {type, {}, std::uint64_t{0}, {{EventField::keyboardEventKeycode, virtualKey::a}}});
    desktop_.settle();
    desktop_.keyboard.release(keycode::alt);
    desktop_.settle();

    EXPECT_TRUE(desktop_.receives({"key 64 down", "key 248 down (alt)", "key 248 up (alt)",
        "key 64 up (alt)", "key 38 down", "key 38 up", "key 64 down", "key 248 down (alt)",
        "key 248 up (alt)", "key 64 up (alt)"}));
}

TEST_F(X11LoneModifiersTest, haveNoKeyForCompanyThatTheLayoutKnows)
{
    const xcb_keysym_t symbol = 'x';
    xcb_change_keyboard_mapping(server_.get(), 1, 248, 1, &symbol);
    server_.sync();
    tap(middleButton(), EventVerdict::swallow);

    const auto lines = clickWhileHolding(keycode::alt);

    ASSERT_EQ(lines.size(), 4U) << testing::PrintToString(lines);
    EXPECT_NE(lines[1], "key 248 down (alt)");
    EXPECT_TRUE(lines[1].ends_with("down (alt)")) << lines[1];
}

} // namespace
} // namespace brindlex
