#include "app/AppLifecycleCoordinator.h"

#include "app/SimulatedProgram.h"

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
