#include "platform/linux/input/X11TapSessionFixture.h"

#include "support/basics/RecordedLog.h"
#include "support/hardware/PlayedInput.h"

namespace brindlex {
namespace {

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
    const RecordedLog log;
    tap(middleButton());
    auto other = std::make_unique<XConnection>();
    ASSERT_TRUE(takeDevice(*other, "mouse"));
    tap({wheel, EventTriggers{.wheel = true}}, EventVerdict::swallow);
    desktop_.secondMouse.turnWheel(-1);
    desktop_.settle();
    EXPECT_EQ(seen_.size(), 1U);
    EXPECT_EQ(log.lines(),
        Lines{"WARN [mouse] Another program has taken \"mouse\"; it is tapped once it is given "
              "back"});

    other.reset();

    EXPECT_TRUE(loopUntil([this] {
        desktop_.mouse.turnWheel(-1);
        desktop_.mouse.settle();
        return seen_.size() > 1;
    }));
}

TEST_F(X11TapSessionTest, tapsAButtonOnceAnotherProgramHasGivenItBackAndSaysSoOnce)
{
    const RecordedLog log;
    auto other = std::make_unique<XConnection>();
    ASSERT_TRUE(takeButton(*other, "mouse", 2));
    tap(middleButton(), EventVerdict::swallow);
    desktop_.secondMouse.click(2);
    desktop_.settle();
    EXPECT_EQ(seen_.size(), 2U);
    // It has been tried again meanwhile.
    EXPECT_TRUE(
        loopThroughout(std::chrono::milliseconds(200), [&] { return log.lines().size() == 1; }));
    EXPECT_EQ(log.lines(),
        Lines{"WARN [mouse] Another program holds button 2 of \"mouse\"; it is tapped once it is "
              "given back"});

    other.reset();

    EXPECT_TRUE(loopUntil([this] {
        desktop_.mouse.click(2);
        desktop_.mouse.settle();
        return seen_.size() > 2;
    }));
}

TEST_F(X11TapSessionTest, leavesAloneWhatOtherProgramsPlay)
{
    tap({mouseButtonMask | keyMask, {}}, EventVerdict::swallow);
    const PlayedInput other(server_);

    other.click(100, 100, 2);
    other.pressKey(keycode::a);
    other.releaseKey(keycode::a);
    desktop_.settleTaps();

    EXPECT_TRUE(desktop_.receives({"press 2", "release 2", "key 38 down", "key 38 up"}));
    EXPECT_EQ(seen_, std::vector<Event>{});
}

} // namespace
} // namespace brindlex
