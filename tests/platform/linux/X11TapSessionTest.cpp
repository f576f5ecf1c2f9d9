#include "platform/linux/X11TapSession.h"

#include "support/Eventually.h"
#include "support/InputDevices.h"
#include "support/KeyboardGroup.h"
#include "support/Keycodes.h"
#include "support/PlayedInput.h"
#include "support/TappedDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

constexpr EventMask buttonsAndDrags = 0xE0000DE;
constexpr EventMask wheel = eventMask(EventType::scrollWheel);
constexpr EventMask keys = 0xC00;
constexpr std::int64_t keyA = 0;

EventInterest middleButton() { return {buttonsAndDrags, EventTriggers{.buttons = {{2, {}}}}}; }

EventInterest controlA() { return {keys, EventTriggers{.keys = {{keyA, eventFlag::control}}}}; }

class X11TapSessionTest : public testing::Test {
protected:
    X11TapSessionTest()
    {
        // With acceleration the way of the cursor would depend on the time.
        xcb_change_pointer_control(server_.get(), 1, 1, 0, true, true);
        server_.sync();
    }

    /// A tap that is switched on, and notes the types of what it sees.
    void tap(EventInterest interest, EventVerdict verdict = EventVerdict::pass)
    {
        tap_ = desktop_.tapping.createTap(interest.mask, {interest}, [=, this](const Event& event) {
            seen_.push_back(event);
            return verdict;
        });
        ASSERT_NE(tap_, nullptr);
        tap_->setEnabled(true);
        desktop_.settle();
    }

    void drop()
    {
        tap_.reset();
        desktop_.settle();
    }

    std::vector<EventType> typesSeen() const
    {
        std::vector<EventType> types;
        for (const auto& event : seen_)
            types.push_back(event.type);
        return types;
    }

    bool floats(const Lines& devices)
    {
        return loopUntil([&] { return floatingDevices(server_) == devices; });
    }

    /// What the key types alone, with the layout in force.
    xcb_keysym_t symbolOf(std::uint8_t key) const
    {
        const XReply<xcb_get_keyboard_mapping_reply_t> map(xcb_get_keyboard_mapping_reply(
            server_.get(), xcb_get_keyboard_mapping(server_.get(), key, 1), nullptr));
        return map ? *xcb_get_keyboard_mapping_keysyms(map.get()) : 0;
    }

    TappedDesktop desktop_;
    XConnection server_;
    std::vector<Event> seen_;
    std::unique_ptr<EventTap> tap_;
};

TEST_F(X11TapSessionTest, takesAMouseFromTheTriggerToTheLastReleaseAndNothingElse)
{
    tap(middleButton());
    EXPECT_EQ(floatingDevices(server_), Lines{});

    desktop_.mouse.press(2);
    desktop_.settle();
    EXPECT_EQ(floatingDevices(server_), Lines{"mouse"});
    desktop_.mouse.press(1);
    desktop_.mouse.release(2);
    desktop_.settle();
    EXPECT_EQ(floatingDevices(server_), Lines{"mouse"});
    desktop_.mouse.release(1);
    desktop_.settle();

    EXPECT_EQ(floatingDevices(server_), Lines{});
    EXPECT_TRUE(desktop_.receives({"press 2", "press 1", "release 2", "release 1"}));
}

TEST_F(X11TapSessionTest, holdsNoReleaseOfAButtonUpForTheTaps)
{
    bool cameFirst = false;
    const auto interest = middleButton();
    tap_ = desktop_.tapping.createTap(interest.mask, {interest}, [&](const Event& event) {
        if (event.type == EventType::otherMouseUp)
            cameFirst = eventually([&] {
                return desktop_.window.lines() == Lines{"press 2", "release 2"};
            });
        return EventVerdict::pass;
    });
    ASSERT_NE(tap_, nullptr);
    tap_->setEnabled(true);
    desktop_.settle();

    desktop_.mouse.click(2);
    EXPECT_TRUE(desktop_.receives({"press 2", "release 2"}));
    EXPECT_TRUE(loopUntil([&] { return cameFirst; }));
}

TEST_F(X11TapSessionTest, takesAKeyboardOnlyWhileAHotkeyIsHeld)
{
    tap(controlA());
    desktop_.keyboard.press(keycode::control);
    desktop_.settle();
    EXPECT_EQ(floatingDevices(server_), Lines{});

    desktop_.keyboard.press(keycode::a);
    desktop_.settle();
    EXPECT_EQ(floatingDevices(server_), Lines{"keyboard"});
    desktop_.keyboard.release(keycode::control);
    desktop_.keyboard.release(keycode::a);
    desktop_.settle();

    EXPECT_EQ(floatingDevices(server_), Lines{});
    EXPECT_TRUE(desktop_.receives(
        {"key 37 down", "key 38 down (control)", "key 37 up (control)", "key 38 up"}));
    EXPECT_EQ(desktop_.window.held(), Lines{});
}

TEST_F(X11TapSessionTest, takesTheMiceForTheWheelAndTheKeyboardsForEveryKey)
{
    tap({wheel, EventTriggers{.wheel = true}});
    EXPECT_EQ(floatingDevices(server_), (Lines{"mouse", "second-mouse"}));
    tap({keys, {}});
    EXPECT_EQ(floatingDevices(server_), Lines{"keyboard"});
    drop();
    EXPECT_EQ(floatingDevices(server_), Lines{});
}

TEST_F(X11TapSessionTest, releasesWhatAMouseHeldThatIsPulledOutInADrag)
{
    tap(middleButton());
    desktop_.mouse.press(2);
    desktop_.mouse.move(5, 0);
    desktop_.settle();

    desktop_.mouse.pullOut();
    EXPECT_TRUE(desktop_.receives({"press 2", "release 2"}));
    desktop_.secondMouse.click(2);
    desktop_.secondMouse.settle();

    EXPECT_TRUE(desktop_.receives({"press 2", "release 2", "press 2", "release 2"}));
    EXPECT_EQ(desktop_.window.held(), Lines{});
}

TEST_F(X11TapSessionTest, goesOnWithADragWhenAnotherMouseIsPulledOutAndComesBack)
{
    tap(middleButton(), EventVerdict::swallow);
    desktop_.secondMouse.pullOut();
    desktop_.mouse.press(2);
    desktop_.mouse.settle();

    desktop_.secondMouse.plugIn();
    desktop_.settleTaps();
    desktop_.mouse.move(5, 0);
    desktop_.mouse.release(2);
    desktop_.mouse.settle();
    desktop_.settleTaps();
    EXPECT_EQ(typesSeen(),
        (std::vector{
            EventType::otherMouseDown, EventType::otherMouseDragged, EventType::otherMouseUp}));
    drop();
    desktop_.mouse.click(2);
    desktop_.mouse.settle();

    EXPECT_TRUE(desktop_.receives({"press 2", "release 2"}));
}

TEST_F(X11TapSessionTest, tapsAMouseThatIsPluggedIn)
{
    desktop_.secondMouse.pullOut();
    tap({wheel, EventTriggers{.wheel = true}});
    EXPECT_TRUE(floats({"mouse"}));

    desktop_.secondMouse.plugIn();

    EXPECT_TRUE(floats({"mouse", "second-mouse"}));
}

TEST_F(X11TapSessionTest, holdsAButtonUntilTheLastOfTwoMiceLetsGo)
{
    tap({buttonsAndDrags, {}});
    desktop_.mouse.press(1);
    desktop_.settle();
    desktop_.secondMouse.press(1);
    desktop_.settle();
    desktop_.mouse.release(1);
    desktop_.settle();
    EXPECT_EQ(desktop_.window.held(), Lines{"button 1"});

    desktop_.secondMouse.release(1);
    desktop_.settle();

    EXPECT_TRUE(desktop_.receives({"press 1", "release 1"}));
    EXPECT_EQ(seen_.size(), 4U);
}

TEST_F(X11TapSessionTest, movesTheCursorAsFarAsTheMouseDoesByItself)
{
    const auto play = [this] {
        desktop_.window.movePointer({640, 400});
        for (int step = 0; step < 40; ++step) {
            desktop_.mouse.move(0.3 * (1 + step % 7), -0.45 * (1 + step % 5));
            desktop_.mouse.settle();
        }
        desktop_.settle();
        return desktop_.window.pointer();
    };
    const auto alone = play();

    tap({buttonsAndDrags | wheel | eventMask(EventType::mouseMoved), {}});
    const auto tapped = play();

    EXPECT_NEAR(alone.x, 640 + 46.5, 1);
    EXPECT_NEAR(alone.y, 400 - 54, 1);
    EXPECT_NEAR(tapped.x, alone.x, 1);
    EXPECT_NEAR(tapped.y, alone.y, 1);
}

TEST_F(X11TapSessionTest, tellsWhereTheCursorIsAndWhatIsHeldAtEachEvent)
{
    tap(middleButton(), EventVerdict::swallow);
    desktop_.window.movePointer({200, 100});
    desktop_.keyboard.press(keycode::control);
    desktop_.settle();

    desktop_.mouse.press(2);
    desktop_.settle();
    desktop_.mouse.move(2, 1);
    desktop_.settle();
    desktop_.keyboard.release(keycode::control);
    desktop_.settle();
    desktop_.mouse.release(2);
    desktop_.settle();

    const EventFields fields{{EventField::mouseEventButtonNumber, 2}};
    EXPECT_EQ(seen_,
        (std::vector<Event>{{EventType::otherMouseDown, {200, 100}, eventFlag::control, fields},
            {EventType::otherMouseDragged, {202, 101}, eventFlag::control, fields},
            {EventType::otherMouseUp, {202, 101}, 0, fields}}));
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

TEST_F(X11TapSessionTest, showsTheRepeatsOfAHeldKeyAndLetsTheServerRepeatIt)
{
    tap({keys, {}});
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
    tap({keys, {}});
    desktop_.desktop.setKeyboardLayouts("fr");
    desktop_.settle();
    desktop_.keyboard.stroke(keycode::q);
    desktop_.settle();
    EXPECT_EQ(symbolOf(keycode::q), xcb_keysym_t{'a'});

    drop();
    EXPECT_TRUE(floats({}));
    desktop_.keyboard.stroke(keycode::q);
    desktop_.settle();

    EXPECT_EQ(symbolOf(keycode::q), xcb_keysym_t{'a'});
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

    tap({keys, {}});
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

TEST_F(X11TapSessionTest, tapsWhileAMenuOfAnotherProgramHoldsThePointer)
{
    tap(middleButton(), EventVerdict::swallow);
    const XReply<xcb_grab_pointer_reply_t> menu(xcb_grab_pointer_reply(server_.get(),
        xcb_grab_pointer(server_.get(), true, desktop_.window.id(),
            XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE, XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    ASSERT_EQ(menu->status, XCB_GRAB_STATUS_SUCCESS);

    desktop_.mouse.click(2);
    desktop_.settle();

    EXPECT_EQ(typesSeen(), (std::vector{EventType::otherMouseDown, EventType::otherMouseUp}));
}

TEST_F(X11TapSessionTest, takesADeviceOnceAnotherProgramHasGivenItBack)
{
    tap(middleButton());
    auto other = std::make_unique<XConnection>();
    ASSERT_TRUE(takeDevice(*other, "mouse"));
    tap({wheel, EventTriggers{.wheel = true}}, EventVerdict::swallow);
    desktop_.secondMouse.turnWheel(-1);
    desktop_.settle();
    EXPECT_EQ(seen_.size(), 1U);

    other.reset();

    EXPECT_TRUE(loopUntil([this] {
        desktop_.mouse.turnWheel(-1);
        desktop_.mouse.settle();
        return seen_.size() > 1;
    }));
}

TEST_F(X11TapSessionTest, leavesAloneWhatOtherProgramsPlay)
{
    tap({buttonsAndDrags | keys, {}}, EventVerdict::swallow);
    const PlayedInput other(server_);

    other.click(100, 100, 2);
    other.pressKey(keycode::a);
    other.releaseKey(keycode::a);
    desktop_.settleTaps();

    EXPECT_TRUE(desktop_.receives({"press 2", "release 2", "key 38 down", "key 38 up"}));
    EXPECT_EQ(seen_, std::vector<Event>{});
}

TEST_F(X11TapSessionTest, isNotLedAstrayByAProgramThatMovesTheCursor)
{
    tap({buttonsAndDrags, {}});
    desktop_.mouse.move(1, 1);
    desktop_.settle();

    desktop_.window.movePointer({300, 200});
    desktop_.mouse.move(2, 1);
    desktop_.settle();

    EXPECT_EQ(desktop_.window.pointer(), (EventLogWindow::Position{302, 201}));
}

} // namespace
} // namespace brindlex
