#include "shell/CheckForUpdatesViewModel.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(CheckForUpdatesViewModel, isEnabledUnlessACheckGoesOn)
{
    const RecordedLog log;
    SimulatedComputer computer;
    computer.program.updateFeedURL = "https://brindlex.example/feed.json";
    SoftwareUpdateManager manager(computer.network, computer.program);
    CheckForUpdatesViewModel model(manager);
    EXPECT_TRUE(model.canCheckForUpdates().value());

    model.checkForUpdates();
    EXPECT_FALSE(model.canCheckForUpdates().value());

    computer.mainThread.runUntilIdle();
    EXPECT_TRUE(model.canCheckForUpdates().value());
}

TEST(CheckForUpdatesViewModel, isDisabledWithoutAFeed)
{
    SimulatedComputer computer;
    SoftwareUpdateManager manager(computer.network, computer.program);
    const CheckForUpdatesViewModel model(manager);

    EXPECT_FALSE(model.canCheckForUpdates().value());
}

} // namespace
} // namespace brindlex
