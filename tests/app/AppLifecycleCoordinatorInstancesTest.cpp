#include "app/AppLifecycleCoordinator.h"

#include "app/JournalledProcess.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(AppLifecycleCoordinator, wakesTheFirstInstanceAndStartsNothing)
{
    SimulatedSessionServices services;
    JournalledProcess first(services);
    first.lifecycle.start();
    JournalledProcess second(services);

    second.lifecycle.start();

    EXPECT_EQ(second.journal.entries,
        (std::vector<std::string>{
            "list com.brindlex.Brindlex",
            "post com.brindlex.Brindlex.showMainWindow com.brindlex.Brindlex",
            "activate the other",
            "terminate",
        }));
    EXPECT_FALSE(second.lifecycle.isStarted());
    EXPECT_TRUE(second.desktop.instances.isTerminating());
    EXPECT_EQ(services.session.activated,
        std::vector<ProgramInstances::ProcessIdentifier>{first.desktop.instances.current()});
}

TEST(AppLifecycleCoordinator, answersASecondLaunchBeforeTheUsersEyes)
{
    SimulatedSessionServices services;
    JournalledProcess first(services);
    first.lifecycle.start();
    JournalledProcess second(services);
    second.lifecycle.start();

    first.desktop.mainThread.runUntilIdle();

    EXPECT_EQ(first.desktop.overlayPanel.calls(), std::vector<std::string>{"show Brindlex"});
    first.desktop.mainThread.advance(0.8);
    EXPECT_TRUE(first.desktop.overlayPanel.isFading());
}

TEST(AppLifecycleCoordinator, doesNotLookForOthersAfterAChangeOfLanguage)
{
    SimulatedSessionServices services;
    JournalledProcess first(services);
    first.lifecycle.start();
    JournalledProcess relaunched(services);
    relaunched.shared.preferences().write(
        &UserDefaultPreferenceKeys::shouldRestoreFocusAfterLanguageRelaunch, true);
    relaunched.journal.entries.clear();

    relaunched.lifecycle.start();

    EXPECT_TRUE(relaunched.lifecycle.isStarted());
    EXPECT_EQ(relaunched.journal.entries.front(), "container");
    EXPECT_EQ(relaunched.journal.entries.back(), "log NOTICE [lifecycle] Brindlex launched");
}

} // namespace
} // namespace brindlex
