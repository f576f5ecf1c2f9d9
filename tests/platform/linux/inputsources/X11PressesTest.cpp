#include "platform/linux/inputsources/X11Presses.h"

#include "support/hardware/PlayedInput.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

class X11PressesTest : public testing::Test {
protected:
    /// Waits until the server has what was requested, and the events up to then have come.
    void settle()
    {
        const X11Message<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(
            connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
        loopThroughout(50ms, [] { return true; });
    }

    VirtualDesktop desktop_{{.windowManager = WindowManager::none, .sessionBus = false}};
    XConnection server_;
    PlayedInput input_{server_};
    X11Connection connection_;
    int noticed_ = 0;
    X11Presses presses_{connection_, [this] { ++noticed_; }};
};

TEST_F(X11PressesTest, areNoticedWhoeverGetsThem)
{
    presses_.await();
    settle();
    input_.showHand();
    EXPECT_TRUE(loopUntil([&] { return noticed_ == 1; }));

    presses_.await();
    settle();
    input_.click(10, 10);
    EXPECT_TRUE(loopUntil([&] { return noticed_ == 2; }));
}

TEST_F(X11PressesTest, areNoticedOnceAndOnlyWhileTheyAreAwaited)
{
    input_.showHand();
    settle();
    EXPECT_EQ(noticed_, 0);

    presses_.await();
    settle();
    input_.showHand();
    input_.showHand();
    settle();
    EXPECT_EQ(noticed_, 1);
}

TEST_F(X11PressesTest, areNoticedOnceHoweverOftenTheyAreAwaited)
{
    presses_.await();
    presses_.await();
    settle();
    input_.showHand();
    settle();
    EXPECT_EQ(noticed_, 1);
}

TEST_F(X11PressesTest, areNeitherMotionNorTheWheel)
{
    presses_.await();
    settle();
    input_.movePointer(20, 20);
    input_.click(20, 20, 4);
    input_.click(20, 20, 7);
    settle();
    EXPECT_EQ(noticed_, 0);
}

TEST_F(X11PressesTest, areNoticedWhileAnotherProgramHoldsTheKeyboard)
{
    const X11Message<xcb_grab_keyboard_reply_t> grab(xcb_grab_keyboard_reply(server_.get(),
        xcb_grab_keyboard(server_.get(), true, server_.root(), XCB_CURRENT_TIME,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr));
    ASSERT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
    presses_.await();
    settle();
    input_.showHand();
    EXPECT_TRUE(loopUntil([&] { return noticed_ == 1; }));
}

TEST_F(X11PressesTest, areNotAwaitedWithoutAServer)
{
    desktop_.endDisplayServer();
    EXPECT_TRUE(loopUntil([&] { return !connection_.isAlive(); }));
    presses_.await();
    X11Presses late(connection_, [this] { ++noticed_; });
    late.await();
    EXPECT_EQ(noticed_, 0);
}

} // namespace
} // namespace brindlex
