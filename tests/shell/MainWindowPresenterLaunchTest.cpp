#include "shell/MainWindowPresenter.h"

#include "shell/MainWindowPresenterFixture.h"

namespace brindlex {
namespace {

class MainWindowPresenterLaunch : public MainWindowPresenterFixture {
protected:
    MainWindowPresenterLaunch() { windows.setDelay(0); }
};

TEST_F(MainWindowPresenterLaunch, bringsTheWindowForward)
{
    giveAction();
    EXPECT_FALSE(isInFront());

    presenter.finishLaunching(true);

    EXPECT_TRUE(isInFront());
    EXPECT_TRUE(presenter.hasFinishedLaunching());
    EXPECT_FALSE(presenter.isLaunchFocusRequestPending());
}

TEST_F(MainWindowPresenterLaunch, showsNothingUnlessItIsToBeSeen)
{
    giveAction();

    presenter.finishLaunching(false);
    mainThread.advance(60);
    EXPECT_EQ(windows.window("main"), std::nullopt);

    presenter.showMainWindow();
    EXPECT_TRUE(isInFront());
}

TEST_F(MainWindowPresenterLaunch, waitsForTheWayToOpenTheWindow)
{
    presenter.finishLaunching(true);
    EXPECT_TRUE(presenter.isLaunchFocusRequestPending());

    giveAction();

    EXPECT_TRUE(isInFront());
}

TEST_F(MainWindowPresenterLaunch, waitsForTheWindow)
{
    presenter.finishLaunching(true);

    openWindow();

    EXPECT_TRUE(isInFront());
}

TEST_F(MainWindowPresenterLaunch, waitsForItsEnd)
{
    giveAction();
    openWindow();

    EXPECT_FALSE(presenter.hasFinishedLaunching());
    EXPECT_FALSE(isInFront());
    EXPECT_EQ(tries(), 0);
}

TEST_F(MainWindowPresenterLaunch, triesAsOftenAsARequest)
{
    giveAction();
    windows.setDelay({});

    presenter.finishLaunching(true);
    mainThread.advance(60);

    EXPECT_EQ(tries(), 6);
}

TEST_F(MainWindowPresenterLaunch, showsNothingMoreOnceTheWindowWasShown)
{
    presenter.finishLaunching(true);
    presenter.showMainWindow();
    EXPECT_FALSE(presenter.isLaunchFocusRequestPending());
    mainThread.advance(60);

    giveAction();

    EXPECT_EQ(windows.window("main"), std::nullopt);
}

TEST_F(MainWindowPresenterLaunch, doesNotBringBackAWindowThatTheUserHasClosed)
{
    windows.close(openWindow());

    presenter.finishLaunching(true);
    giveAction();

    EXPECT_EQ(windows.window("main"), std::nullopt);
    EXPECT_TRUE(presenter.isLaunchFocusRequestPending());
}

TEST_F(MainWindowPresenterLaunch, isForgottenAtTheStop)
{
    presenter.finishLaunching(true);
    presenter.stop();

    giveAction();

    EXPECT_EQ(windows.window("main"), std::nullopt);
    EXPECT_FALSE(presenter.hasFinishedLaunching());
    EXPECT_FALSE(presenter.isLaunchFocusRequestPending());
}

} // namespace
} // namespace brindlex
