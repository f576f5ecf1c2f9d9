#include "app/AppLifecycleCoordinator.h"

#include "app/SimulatedProgram.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brindlex {
namespace {

/// A program with a main window, on a desktop that brings windows forward at once.
struct AppLifecycleCoordinatorWindows : testing::Test, SimulatedProgram {
    AppLifecycleCoordinatorWindows() { computer.programWindows.addScene("main"); }

    bool isMainWindowInFront() const
    {
        const auto window = computer.programWindows.window("main");
        return window && computer.programWindows.isInFront(*window);
    }
    void setShowsDockIcon(bool showsDockIcon)
    {
        shared.preferences().write(&UserDefaultPreferenceKeys::showsDockIcon, showsDockIcon);
    }
    void expectNoOverlay() const
    {
        EXPECT_EQ(computer.overlayPanel.calls(), std::vector<std::string>{});
    }
};

TEST_F(AppLifecycleCoordinatorWindows, comeForwardWithTheLaunch)
{
    lifecycle.start();
    EXPECT_FALSE(isMainWindowInFront());

    lifecycle.didFinishLaunching(false);

    EXPECT_TRUE(isMainWindowInFront());
}

TEST_F(AppLifecycleCoordinatorWindows, stayAwayFromALaunchByTheDesktopUntilSomebodyAsks)
{
    lifecycle.start();
    lifecycle.didFinishLaunching(true);
    computer.mainThread.advance(60);
    EXPECT_EQ(computer.programWindows.window("main"), std::nullopt);

    lifecycle.showMainWindowRequested();

    EXPECT_TRUE(isMainWindowInFront());
    expectNoOverlay();
}

TEST_F(AppLifecycleCoordinatorWindows, comeForwardAfterAChangeOfLanguageHoweverItWasLaunched)
{
    shared.preferences().write(
        &UserDefaultPreferenceKeys::shouldRestoreFocusAfterLanguageRelaunch, true);
    lifecycle.start();

    lifecycle.didFinishLaunching(true);

    EXPECT_TRUE(isMainWindowInFront());
    EXPECT_FALSE(shared.preferences().read(
        &UserDefaultPreferenceKeys::shouldRestoreFocusAfterLanguageRelaunch));
}

TEST_F(AppLifecycleCoordinatorWindows, comeForwardForASecondLaunchThatAppliesTheDockPolicyFirst)
{
    lifecycle.start();
    lifecycle.didFinishLaunching(true);
    computer.activationPolicy.fallBackTo(ActivationPolicy::accessory);
    journal.take();

    lifecycle.showMainWindowRequested();

    EXPECT_EQ(journal.take(),
        (std::vector<std::string>{"log INFO [lifecycle] Asked to show the main window",
            "policy regular", "open main", "bring forward main"}));
}

TEST_F(AppLifecycleCoordinatorWindows, comeForwardAlsoWhereTheyAreVisible)
{
    lifecycle.start();
    lifecycle.didFinishLaunching(false);
    computer.programWindows.goElsewhere();
    EXPECT_FALSE(isMainWindowInFront());

    lifecycle.showMainWindowRequested();

    EXPECT_TRUE(isMainWindowInFront());
}

TEST_F(AppLifecycleCoordinatorWindows, mayAllBeClosedWithoutEndingTheProgram)
{
    lifecycle.start();
    lifecycle.didFinishLaunching(false);
    journal.take();

    computer.programWindows.close(*computer.programWindows.window("main"));
    computer.mainThread.advance(60);

    EXPECT_EQ(journal.take(), std::vector<std::string>{});
    EXPECT_FALSE(computer.instances.isTerminating());
}

TEST_F(AppLifecycleCoordinatorWindows, stayInTheBackgroundWithoutADockIcon)
{
    setShowsDockIcon(false);

    lifecycle.start();

    EXPECT_EQ(computer.activationPolicy.activationPolicy(), ActivationPolicy::accessory);
}

TEST_F(AppLifecycleCoordinatorWindows, followTheDockIconThatAnotherProcessTakesAway)
{
    lifecycle.start();
    lifecycle.didFinishLaunching(false);

    setShowsDockIcon(false);
    computer.programWindows.goElsewhere();
    computer.mainThread.advance(0.15);

    EXPECT_EQ(computer.activationPolicy.activationPolicy(), ActivationPolicy::accessory);
    EXPECT_TRUE(isMainWindowInFront());
}

TEST_F(AppLifecycleCoordinatorWindows, areLeftAloneByTheStopThatEndsWhatIsPending)
{
    computer.programWindows.setDelay({});
    lifecycle.start();
    lifecycle.didFinishLaunching(false);
    setShowsDockIcon(false);
    const auto window = computer.programWindows.window("main");
    auto& presenter = shared.windows().mainWindow();
    const auto token = presenter.trackedMainWindowToken();

    lifecycle.stop();
    journal.take();
    computer.mainThread.advance(60);

    EXPECT_EQ(journal.take(), std::vector<std::string>{});
    EXPECT_EQ(computer.activationPolicy.activationPolicy(), ActivationPolicy::regular);
    EXPECT_EQ(computer.programWindows.window("main"), window);
    EXPECT_EQ(presenter.trackedMainWindow(), std::nullopt);
    EXPECT_EQ(presenter.trackedMainWindowToken(), token + 1);
}

} // namespace
} // namespace brindlex
