#include "platform/linux/input/X11TapSessionFixture.h"

#include "support/hardware/KeyboardGroup.h"

#include <array>
#include <cstdint>

namespace brindlex {
namespace {

/// What the key types alone, with the layout in force.
xcb_keysym_t symbolOf(const XConnection& server, std::uint8_t key)
{
    const XReply<xcb_get_keyboard_mapping_reply_t> map(xcb_get_keyboard_mapping_reply(
        server.get(), xcb_get_keyboard_mapping(server.get(), key, 1), nullptr));
    return map ? *xcb_get_keyboard_mapping_keysyms(map.get()) : 0;
}

TEST_F(X11TapSessionTest, knowsAHotkeyUnderCapsLockAndNumLock)
{
    tap(controlA(), EventVerdict::swallow);
    desktop_.keyboard.stroke(keycode::capsLock);
    desktop_.keyboard.stroke(keycode::numLock);
    desktop_.keyboard.press(keycode::control);
    desktop_.settle();
    desktop_.window.forget();

    desktop_.keyboard.stroke(keycode::a);
    desktop_.settle();

    EXPECT_TRUE(desktop_.receives({}));
    EXPECT_EQ(typesSeen(), (std::vector{EventType::keyDown, EventType::keyUp}));
}

TEST_F(X11TapSessionTest, knowsAHotkeyOfWhichTheHandHasLetGoMeanwhile)
{
    tap(controlA(), EventVerdict::swallow);
    desktop_.keyboard.press(keycode::control);
    desktop_.settle();
    desktop_.window.forget();

    desktop_.keyboard.stroke(keycode::a);
    desktop_.keyboard.release(keycode::control);
    desktop_.keyboard.settle();
    desktop_.settle();

    EXPECT_TRUE(desktop_.receives({"key 37 up (control)"}));
    EXPECT_EQ(typesSeen(), (std::vector{EventType::keyDown, EventType::keyUp}));
    EXPECT_EQ(seen_.front().flags, eventFlag::control);
}

TEST_F(X11TapSessionTest, knowsItsTriggersUnderEverySetOfLocks)
{
    constexpr std::array locks{XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2, XCB_MOD_MASK_3, XCB_MOD_MASK_5};
    tap({mouseButtonMask | keyMask,
            EventTriggers{.buttons = {{2, eventFlag::control}},
                .keys = {{virtualKey::a, eventFlag::control}}}},
        EventVerdict::swallow);
    desktop_.keyboard.press(keycode::control);
    for (unsigned set = 0; set < 1U << locks.size(); ++set) {
        unsigned modifiers = 0;
        for (std::size_t lock = 0; lock < locks.size(); ++lock)
            if ((set >> lock & 1U) != 0)
                modifiers |= locks[lock];
        lockModifiers(server_, static_cast<std::uint8_t>(modifiers));
        desktop_.settle();
        desktop_.window.forget();
        seen_.clear();

        desktop_.keyboard.stroke(keycode::a);
        desktop_.mouse.press(2);
        desktop_.mouse.release(2);
        desktop_.settle();

        EXPECT_TRUE(desktop_.receives({})) << set;
        EXPECT_EQ(seen_.size(), 4u) << set;
    }
    lockModifiers(server_, 0);
    desktop_.keyboard.release(keycode::control);
}

TEST_F(X11TapSessionTest, showsTheRepeatsOfAHeldKeyAndLetsTheServerRepeatIt)
{
    tap({keyMask, {}});
    desktop_.keyboard.press(keycode::a);

    EXPECT_TRUE(loopUntil([this] { return seen_.size() >= 3; }));
    EXPECT_TRUE(loopUntil([this] { return desktop_.window.lines().size() >= 4; }));
    desktop_.keyboard.release(keycode::a);
    desktop_.settle();

    EXPECT_EQ(seen_[0].value(EventField::keyboardEventAutorepeat), 0);
    EXPECT_EQ(seen_[1].value(EventField::keyboardEventAutorepeat), 1);
    EXPECT_EQ(seen_.back().type, EventType::keyUp);
    const auto lines = desktop_.window.lines();
    for (std::size_t line = 0; line < lines.size(); ++line)
        EXPECT_EQ(lines[line], line % 2 == 0 ? "key 38 down" : "key 38 up");
    EXPECT_EQ(desktop_.window.held(), Lines{});
}

TEST_F(X11TapSessionTest, keepsTheLayoutThatTheUserMakesMeanwhile)
{
    tap({keyMask, {}});
    desktop_.desktop.setKeyboardLayouts("fr");
    desktop_.settle();
    desktop_.keyboard.stroke(keycode::q);
    desktop_.settle();
    EXPECT_EQ(symbolOf(server_, keycode::q), xcb_keysym_t{'a'});

    drop();
    EXPECT_TRUE(floats({}));
    desktop_.keyboard.stroke(keycode::q);
    desktop_.settle();

    EXPECT_EQ(symbolOf(server_, keycode::q), xcb_keysym_t{'a'});
}

TEST_F(X11TapSessionTest, keepsTheSelectedLayout)
{
    selectKeyboardGroup(server_, 1);
    desktop_.keyboard.stroke(keycode::q);
    tap(controlA());
    desktop_.keyboard.press(keycode::control);
    desktop_.keyboard.stroke(keycode::a);
    desktop_.keyboard.release(keycode::control);
    desktop_.settle();
    EXPECT_EQ(keyboardGroup(server_), 1);

    tap({keyMask, {}});
    desktop_.keyboard.stroke(keycode::q);
    desktop_.settle();
    EXPECT_EQ(keyboardGroup(server_), 1);
    selectKeyboardGroup(server_, 0);
    desktop_.keyboard.stroke(keycode::q);
    desktop_.settle();
    EXPECT_EQ(keyboardGroup(server_), 0);
    drop();
    EXPECT_TRUE(floats({}));
    desktop_.keyboard.stroke(keycode::q);
    desktop_.settle();

    EXPECT_EQ(keyboardGroup(server_), 0);
}

} // namespace
} // namespace brindlex
