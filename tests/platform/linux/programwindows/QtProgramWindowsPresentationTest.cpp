#include "platform/linux/programwindows/QtProgramWindows.h"

#include "platform/linux/panels/QtProgramActivation.h"
#include "platform/linux/programwindows/X11ActivationPolicy.h"
#include "platform/linux/system/QtMainThread.h"
#include "shell/DockIconPolicyManager.h"
#include "shell/MainWindowPresenter.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brindlex {
namespace {

/// The presenter with real windows and a real loop, beside a program in which the user works.
class QtProgramWindowsPresentation : public testing::Test {
protected:
    QtProgramWindowsPresentation()
    {
        presenter.setOpenMainWindowAction([this] { windows.open("main"); });
        EXPECT_TRUE(desktop.activate(other.window()));
    }

    std::unique_ptr<QWidget> made()
    {
        auto widget = std::make_unique<QWidget>();
        main = widget.get();
        return widget;
    }
    bool comesToTheFront()
    {
        return loopUntil(
            [&] { return main && desktop.active() == static_cast<xcb_window_t>(main->winId()); });
    }
    bool ends()
    {
        return loopUntil([&] { return !presenter.isPresentationPending(); });
    }
    bool userGoesElsewhere()
    {
        desktop.requestActivation(other.window());
        return loopUntil(
            [&] { return desktop.active() == other.window() && !activation.isActive(); });
    }

    XConnection server;
    DesktopWindows desktop{server};
    PlainWindow other{server, {.wmClass = wmClass("Other"), .title = "Other"}};
    X11Connection connection;
    QtMainThread mainThread;
    QtProgramActivation activation;
    X11ActivationPolicy policy{connection};
    QtProgramWindows windows{connection, {}};
    QWidget* main = nullptr;
    Subscription scene = windows.addScene({"main", "main", {320, 240}, [this] { return made(); }});
    DockIconPolicyManager dock{policy, mainThread};
    MainWindowPresenter presenter{windows, activation, mainThread};
};

TEST_F(QtProgramWindowsPresentation, opensTheWindowOverTheOneInWhichTheUserWorks)
{
    presenter.showMainWindow();

    EXPECT_TRUE(comesToTheFront());
    EXPECT_TRUE(ends());
}

TEST_F(QtProgramWindowsPresentation, bringsTheWindowBackEachTimeItIsAskedFor)
{
    presenter.showMainWindow();
    ASSERT_TRUE(comesToTheFront() && ends());
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(userGoesElsewhere());

        presenter.showMainWindow();

        EXPECT_TRUE(comesToTheFront() && ends());
    }
}

TEST_F(QtProgramWindowsPresentation, raisesTheWindowAgainThatLeavesTheTaskBar)
{
    presenter.showMainWindow();
    ASSERT_TRUE(comesToTheFront() && ends());
    ASSERT_TRUE(userGoesElsewhere());

    dock.applyDeferred(
        false, [this](DockIconPolicyResult result) { presenter.handleDockResult(result, true); });

    EXPECT_TRUE(comesToTheFront());
    EXPECT_TRUE(loopUntil([&] {
        const auto states
            = server.values(static_cast<xcb_window_t>(main->winId()), "_NET_WM_STATE");
        return std::ranges::count(states, server.atom("_NET_WM_STATE_SKIP_TASKBAR")) == 1;
    }));
    EXPECT_TRUE(ends());
}

TEST_F(QtProgramWindowsPresentation, showsAnAccessoryLikeAnyOther)
{
    dock.apply(false);

    presenter.showMainWindow();

    EXPECT_TRUE(comesToTheFront());
    EXPECT_TRUE(ends());
}

} // namespace
} // namespace brindlex
