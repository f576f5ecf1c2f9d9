#include "platform/linux/input/X11EventPosting.h"

#include "platform/DockSwipe.h"
#include "platform/VirtualKey.h"
#include "platform/linux/input/VirtualKeyCodes.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/TappedDesktop.h"
#include "support/screen/DesktopWindows.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

constexpr std::int64_t ownTag = 0x4D4F534547535452;

SyntheticEvent button(EventType type, std::int64_t number, std::optional<Point> location = {})
{
    return {type, location, {},
        {{EventField::mouseEventButtonNumber, number}, {EventField::eventSourceUserData, ownTag}}};
}

SyntheticEvent key(EventType type, std::int64_t code, std::optional<std::uint64_t> flags)
{
    return {type, {}, flags, {{EventField::keyboardEventKeycode, code}}};
}

SyntheticEvent scroll(std::int64_t up, std::int64_t left)
{
    return {EventType::scrollWheel, {}, 0,
        {{EventField::scrollWheelEventPointDeltaAxis1, up},
            {EventField::scrollWheelEventPointDeltaAxis2, left}}};
}

class X11EventPostingContract : public testing::Test {
protected:
    void stroke(std::int64_t code, std::uint64_t flags)
    {
        EXPECT_TRUE(desktop_.posting.post(key(EventType::keyDown, code, flags)));
        EXPECT_TRUE(desktop_.posting.post(key(EventType::keyUp, code, flags)));
    }

    TappedDesktop desktop_;
};

TEST_F(X11EventPostingContract, clicksWhereItIsAskedTo)
{
    desktop_.posting.post(button(EventType::rightMouseDown, 1, Point{200, 100}));
    desktop_.posting.post(button(EventType::rightMouseUp, 1, Point{200, 100}));

    EXPECT_TRUE(desktop_.receives({"press 3", "release 3"}));
    EXPECT_EQ(desktop_.window.pointer(), (EventLogWindow::Position{200, 100}));
}

TEST_F(X11EventPostingContract, showsTheEventToTheOwnTapsFirstWithAllItsFields)
{
    std::vector<Event> seen;
    const auto tap = desktop_.tapping.createTap(
        mouseButtonMaskOf(2), {{mouseButtonMaskOf(2), EventTriggers{}}}, [&](const Event& event) {
            seen.push_back(event);
            return EventVerdict::swallow;
        });
    tap->setEnabled(true);

    desktop_.posting.post(button(EventType::otherMouseDown, 3, Point{10, 20}));
    desktop_.posting.post(button(EventType::otherMouseUp, 3, Point{10, 20}));
    desktop_.posting.post(button(EventType::leftMouseDown, 0));
    desktop_.posting.post(button(EventType::leftMouseUp, 0));

    EXPECT_TRUE(desktop_.receives({"press 1", "release 1"}));
    const EventFields fields{
        {EventField::mouseEventButtonNumber, 3}, {EventField::eventSourceUserData, ownTag}};
    EXPECT_EQ(seen,
        (std::vector<Event>{{EventType::otherMouseDown, {10, 20}, 0, fields},
            {EventType::otherMouseUp, {10, 20}, 0, fields}}));
}

TEST_F(X11EventPostingContract, waitsForTheEventInWhoseHandlerItIsCalled)
{
    Lines order;
    const auto mask
        = mouseButtonMaskOf(2) | eventMask(EventType::leftMouseDown, EventType::leftMouseUp);
    const auto tap = desktop_.tapping.createTap(mask, {{mask, {}}}, [&](const Event& e) {
        order.push_back("begin " + std::to_string(static_cast<std::uint32_t>(e.type)));
        if (e.type == EventType::otherMouseUp) {
            desktop_.posting.post(button(EventType::leftMouseDown, 0));
            desktop_.posting.post(button(EventType::leftMouseUp, 0));
        }
        order.push_back("end");
        return EventVerdict::pass;
    });
    tap->setEnabled(true);
    desktop_.settleTaps();

    desktop_.mouse.click(2);
    desktop_.settle();

    EXPECT_TRUE(desktop_.receives({"press 2", "release 2", "press 1", "release 1"}));
    EXPECT_EQ(
        order, (Lines{"begin 25", "end", "begin 26", "end", "begin 1", "end", "begin 2", "end"}));
}

TEST_F(X11EventPostingContract, sendsAKeyWithExactlyItsModifiers)
{
    desktop_.keyboard.press(keycode::control);
    desktop_.settle();

    stroke(virtualKey::a, eventFlag::shift);

    EXPECT_TRUE(desktop_.receives({"key 37 down", "key 37 up (control)", "key 50 down",
        "key 38 down (shift)", "key 38 up (shift)", "key 50 up (shift)", "key 37 down"}));
    desktop_.window.forget();
    desktop_.keyboard.stroke(39);
    desktop_.keyboard.release(keycode::control);
    desktop_.settle();
    EXPECT_TRUE(
        desktop_.receives({"key 39 down (control)", "key 39 up (control)", "key 37 up (control)"}));
    EXPECT_EQ(desktop_.window.held(), Lines{});
}

TEST_F(X11EventPostingContract, holdsNoModifierThatTheHandHasLetGo)
{
    desktop_.keyboard.press(keycode::control);
    desktop_.settle();
    desktop_.posting.post(key(EventType::keyDown, virtualKey::a, 0));

    desktop_.keyboard.release(keycode::control);
    desktop_.keyboard.settle();
    desktop_.posting.post(key(EventType::keyUp, virtualKey::a, 0));
    desktop_.settle();

    EXPECT_TRUE(
        desktop_.receives({"key 37 down", "key 37 up (control)", "key 38 down", "key 38 up"}));
    EXPECT_EQ(desktop_.window.held(), Lines{});
}

TEST_F(X11EventPostingContract, canHoldTheSameModifierAgainAfterTheHandHasLetItGo)
{
    desktop_.keyboard.press(keycode::shift);
    desktop_.settle();
    stroke(virtualKey::a, 0);
    desktop_.settle();
    desktop_.keyboard.release(keycode::shift);
    desktop_.settle();
    desktop_.window.forget();

    stroke(virtualKey::a, eventFlag::shift);

    EXPECT_TRUE(desktop_.receives(
        {"key 50 down", "key 38 down (shift)", "key 38 up (shift)", "key 50 up (shift)"}));
}

TEST_F(X11EventPostingContract, takesCommandForSuper)
{
    stroke(virtualKey::a, eventFlag::command);

    EXPECT_TRUE(desktop_.receives(
        {"key 133 down", "key 38 down (super)", "key 38 up (super)", "key 133 up (super)"}));
}

TEST_F(X11EventPostingContract, goesBackAndForwardAsApplicationsHereDo)
{
    stroke(33, eventFlag::command);
    desktop_.settle();
    stroke(30, eventFlag::command);

    EXPECT_TRUE(desktop_.receives({"press 8", "release 8", "press 9", "release 9"}));
}

TEST_F(X11EventPostingContract, turnsPixelsIntoNotches)
{
    desktop_.posting.post(scroll(4, 0));
    desktop_.posting.post(scroll(4, 0));
    desktop_.posting.post(scroll(2, -10));
    desktop_.posting.post(scroll(-20, 0));

    EXPECT_TRUE(desktop_.receives({"press 4", "release 4", "press 7", "release 7", "press 5",
        "release 5", "press 5", "release 5"}));
}

TEST_F(X11EventPostingContract, turnsTheNotchesOfAnAnnouncedScroll)
{
    const Lines first{"key 64 down", "press 4 (alt)", "release 4 (alt)", "key 64 up (alt)"};
    desktop_.posting.announceScroll(eventFlag::option, {.vertical = 30, .horizontal = 0});
    EXPECT_TRUE(desktop_.receives(first));
    desktop_.window.forget();

    desktop_.posting.post(scroll(4, 0));
    desktop_.posting.finishScroll();

    EXPECT_TRUE(desktop_.receives({"key 64 down", "press 4 (alt)", "release 4 (alt)",
        "press 4 (alt)", "release 4 (alt)", "key 64 up (alt)"}));
}

TEST_F(X11EventPostingContract, leavesItToTheApplicationToTurnSidewaysWhatIsTurnedWithShift)
{
    desktop_.keyboard.press(keycode::shift);
    desktop_.settle();
    auto sideways = scroll(0, -10);
    sideways.flags = eventFlag::shift;
    desktop_.posting.post(sideways);
    desktop_.settle();
    desktop_.keyboard.release(keycode::shift);

    EXPECT_TRUE(desktop_.receives(
        {"key 50 down", "press 5 (shift)", "release 5 (shift)", "key 50 up (shift)"}));
}

TEST_F(X11EventPostingContract, turnsUpAndDownWithTheShiftThatIsHeld)
{
    desktop_.keyboard.press(keycode::shift);
    desktop_.settle();
    auto down = scroll(-10, 0);
    down.flags = eventFlag::shift;
    desktop_.posting.post(down);
    desktop_.settle();
    desktop_.keyboard.release(keycode::shift);

    EXPECT_TRUE(desktop_.receives(
        {"key 50 down", "press 5 (shift)", "release 5 (shift)", "key 50 up (shift)"}));
}

TEST_F(X11EventPostingContract, refusesWhatCannotBeMade)
{
    EXPECT_FALSE(desktop_.posting.post(key(EventType::keyDown, 52, 0)));
    EXPECT_FALSE(desktop_.posting.post(key(EventType::keyDown, -1, 0)));
    EXPECT_FALSE(desktop_.posting.post(button(EventType::otherMouseDown, -1)));
    EXPECT_FALSE(desktop_.posting.post({EventType{99}, {}, {}, {}}));
}

/// Posting on a desktop with a window manager.
class PostingToTheWindowManager : public testing::Test {
protected:
    void swipe(double progress)
    {
        posting_.post({EventType::gesture, {}, {}, {}});
        posting_.post(dockSwipeEvent(DockSwipePhase::began, 0));
        posting_.post(dockSwipeEvent(DockSwipePhase::changed, progress / 2));
        posting_.post(dockSwipeEvent(DockSwipePhase::ended, progress));
    }

    std::uint32_t value(const std::string& property)
    {
        const auto values = server_.values(server_.root(), property);
        return values.empty() ? 0 : values.front();
    }

    bool becomes(const std::string& property, std::uint32_t expected)
    {
        return loopUntil([&] { return value(property) == expected; });
    }

    VirtualDesktop desktop_{{.sessionBus = false}};
    XConnection server_;
    QtMainThread mainThread_;
    PosixClock clock_;
    X11InputStream stream_{mainThread_};
    X11EventPosting posting_{stream_, mainThread_, clock_};
};

TEST_F(PostingToTheWindowManager, switchesTheDesktopByASwipe)
{
    swipe(1.25);
    EXPECT_TRUE(becomes("_NET_CURRENT_DESKTOP", 1));
    swipe(1.25);
    EXPECT_TRUE(becomes("_NET_CURRENT_DESKTOP", 2));
    swipe(-1.25);
    EXPECT_TRUE(becomes("_NET_CURRENT_DESKTOP", 1));
}

TEST_F(PostingToTheWindowManager, staysAtTheEndsOfTheRow)
{
    swipe(-1.25);
    swipe(1.25);
    EXPECT_TRUE(becomes("_NET_CURRENT_DESKTOP", 1));
}

TEST_F(PostingToTheWindowManager, showsTheDesktopAndTheWindowsAgain)
{
    const auto f11 = [&] {
        posting_.post(key(EventType::keyDown, 103, 0));
        posting_.post(key(EventType::keyUp, 103, 0));
    };
    f11();
    EXPECT_TRUE(becomes("_NET_SHOWING_DESKTOP", 1));
    f11();
    EXPECT_TRUE(becomes("_NET_SHOWING_DESKTOP", 0));
}

} // namespace
} // namespace brindlex
