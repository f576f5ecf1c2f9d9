#include "platform/linux/input/X11TapSessionFixture.h"

#include "support/basics/Eventually.h"

namespace brindlex {
namespace {

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
    tap({keyMask, {}});
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

TEST_F(X11TapSessionTest, wantsNothingOfAMouseThatComesBackWhenNobodyWantsItAnyMore)
{
    tap(middleButton());
    desktop_.secondMouse.pullOut();
    desktop_.settleTaps();
    tap({mouseButtonMask, EventTriggers{.buttons = {{3, {}}}}});

    desktop_.secondMouse.plugIn();
    desktop_.settleTaps();
    desktop_.secondMouse.press(2);
    desktop_.secondMouse.settle();

    EXPECT_EQ(floatingDevices(server_), Lines{});
    desktop_.secondMouse.release(2);
    EXPECT_TRUE(desktop_.receives({"press 2", "release 2"}));
}

TEST_F(X11TapSessionTest, takesAMouseAgainThatComesBack)
{
    tap({wheel, EventTriggers{.wheel = true}});
    ASSERT_TRUE(floats({"mouse", "second-mouse"}));
    desktop_.secondMouse.pullOut();
    desktop_.settleTaps();
    desktop_.secondMouse.plugIn();

    EXPECT_TRUE(floats({"mouse", "second-mouse"}));
    desktop_.secondMouse.turnWheel(1);
    desktop_.settle();
    EXPECT_EQ(seen_.size(), 1U);
}

TEST_F(X11TapSessionTest, holdsAButtonUntilTheLastOfTwoMiceLetsGo)
{
    tap({mouseButtonMask, {}});
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

} // namespace
} // namespace brindlex
