#include "app/AppLifecycleCoordinator.h"

#include "app/SimulatedProgram.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(AppLifecycleCoordinator, wakesTheFirstInstanceAndStartsNothing)
{
    const auto services = std::make_shared<SimulatedSessionServices>();
    SimulatedProgram first(services);
    first.lifecycle.start();
    SimulatedProgram second(services);

    second.lifecycle.start();

    const auto process = first.computer.instances.current();
    EXPECT_EQ(second.journal.entries(),
        (std::vector<std::string>{
            "observe preferences",
            "list com.brindlex.Brindlex",
            "post com.brindlex.Brindlex.showMainWindow com.brindlex.Brindlex",
            "activate " + std::to_string(static_cast<std::int64_t>(process)),
            "terminate",
        }));
    EXPECT_FALSE(second.lifecycle.isStarted());
    EXPECT_TRUE(second.computer.instances.isTerminating());
    EXPECT_EQ(
        services->session.activated, std::vector<ProgramInstances::ProcessIdentifier>{process});
}

TEST(AppLifecycleCoordinator, reactsToASecondLaunchBeforeTheUsersEyes)
{
    const auto services = std::make_shared<SimulatedSessionServices>();
    SimulatedProgram first(services);
    first.lifecycle.start();
    SimulatedProgram second(services);
    second.lifecycle.start();

    first.computer.mainThread.runUntilIdle();

    EXPECT_EQ(first.computer.overlayPanel.calls(), std::vector<std::string>{"show Brindlex"});
    first.computer.mainThread.advance(0.8);
    EXPECT_TRUE(first.computer.overlayPanel.isFading());
}

TEST(AppLifecycleCoordinator, showsItselfTwiceASecondInAFloodOfLaunches)
{
    const auto services = std::make_shared<SimulatedSessionServices>();
    SimulatedProgram first(services);
    first.lifecycle.start();
    SimulatedProgram other(services);
    // The log of the process is the one that was installed last.
    other.log.takeLines();

    for (int launch = 0; launch < 10'000; ++launch)
        other.computer.distributedNotifications.post(
            programIdentity::showMainWindow, programIdentity::bundleIdentifier);
    first.computer.mainThread.advance(10);

    EXPECT_EQ(other.log.lines().size(), 2U);
    EXPECT_EQ(std::count(first.computer.overlayPanel.calls().begin(),
                  first.computer.overlayPanel.calls().end(), "show Brindlex"),
        2);
}

TEST(AppLifecycleCoordinator, showsNothingMoreOnceItHasStopped)
{
    SimulatedProgram process;
    process.lifecycle.start();
    process.lifecycle.showMainWindowRequested();
    process.lifecycle.showMainWindowRequested();
    process.lifecycle.stop();
    process.computer.mainThread.advance(10);
    EXPECT_EQ(std::count(process.computer.overlayPanel.calls().begin(),
                  process.computer.overlayPanel.calls().end(), "show Brindlex"),
        1);
}

TEST(AppLifecycleCoordinator, doesNotLookForOthersAfterAChangeOfLanguage)
{
    const auto services = std::make_shared<SimulatedSessionServices>();
    SimulatedProgram first(services);
    first.lifecycle.start();
    SimulatedProgram relaunched(services);
    relaunched.shared.preferences().write(
        &UserDefaultPreferenceKeys::shouldRestoreFocusAfterLanguageRelaunch, true);
    relaunched.journal.take();

    relaunched.lifecycle.start();

    EXPECT_TRUE(relaunched.lifecycle.isStarted());
    EXPECT_EQ(relaunched.journal.entries().front(), "container");
    EXPECT_EQ(relaunched.journal.entries().back(), "log NOTICE [lifecycle] Brindlex launched");
}

} // namespace
} // namespace brindlex
