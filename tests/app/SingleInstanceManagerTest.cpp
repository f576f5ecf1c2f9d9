#include "app/SingleInstanceManager.h"

#include "app/ProgramIdentity.h"
#include "platform/simulated/SimulatedProgramInstances.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "platform/simulated/SimulatedUserFolders.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(SingleInstanceManager, findsNobodyWhenTheProcessIsAlone)
{
    SimulatedSession session;
    SimulatedProgramInstances alone(session, programIdentity::bundleIdentifier);
    SimulatedProgramInstances other(session, "org.example.Other");

    EXPECT_EQ(SingleInstanceManager(alone).existingInstance(), std::nullopt);
}

TEST(SingleInstanceManager, findsTheFirstThatIsNotTheProcessItself)
{
    SimulatedSession session;
    SimulatedProgramInstances first(session, programIdentity::bundleIdentifier);
    SimulatedProgramInstances second(session, programIdentity::bundleIdentifier);
    SimulatedProgramInstances third(session, programIdentity::bundleIdentifier);

    EXPECT_EQ(SingleInstanceManager(first).existingInstance(), std::nullopt);
    EXPECT_EQ(SingleInstanceManager(second).existingInstance(), first.current());
    EXPECT_EQ(SingleInstanceManager(third).existingInstance(), first.current());
}

TEST(SingleInstanceManager, yieldsToNobodyInAProcessThatTakesAnothersPlace)
{
    SimulatedSession session;
    SimulatedProgramInstances first(session, programIdentity::bundleIdentifier);
    SimulatedProgramInstances second(session, programIdentity::bundleIdentifier);
    const SimulatedUserFolders folders;
    SimulatedUserDefaults defaults;
    Preferences preferences(defaults, folders);
    const SingleInstanceManager manager(second);

    EXPECT_EQ(manager.instanceToYieldTo(preferences), first.current());
    preferences.write(&UserDefaultPreferenceKeys::shouldRestoreFocusAfterLanguageRelaunch, true);
    EXPECT_EQ(manager.instanceToYieldTo(preferences), std::nullopt);
}

} // namespace
} // namespace brindlex
