#include "shell/AppVersionTracker.h"

#include "platform/simulated/SimulatedUserDefaults.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class AppVersionTrackerTest : public testing::Test {
protected:
    using Writes = std::vector<SimulatedUserDefaults::Write>;

    void launch(const std::string& version) { AppVersionTracker(defaults, version).recordLaunch(); }

    RecordedLog log;
    SimulatedUserDefaults defaults;
};

TEST_F(AppVersionTrackerTest, storesTheVersionOfAFirstRunAndNothingElse)
{
    launch("0.1.0");

    EXPECT_EQ(defaults.writes(), (Writes{{"lastRunAppVersion", "0.1.0"}}));
    EXPECT_EQ(defaults.value("updatedFromVersion"), std::nullopt);
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(AppVersionTrackerTest, doesNothingForTheSameVersionTwice)
{
    launch("0.1.0");
    launch("0.1.0");

    EXPECT_EQ(defaults.writes().size(), 1U);
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(AppVersionTrackerTest, recordsAChangeInBothDirections)
{
    launch("0.1.0");
    launch("0.2.0");
    launch("0.1.0");

    EXPECT_EQ(defaults.writes(),
        (Writes{{"lastRunAppVersion", "0.1.0"}, {"updatedFromVersion", "0.1.0"},
            {"lastRunAppVersion", "0.2.0"}, {"updatedFromVersion", "0.2.0"},
            {"lastRunAppVersion", "0.1.0"}}));
    EXPECT_EQ(log.lines(),
        (std::vector<std::string>{"NOTICE [lifecycle] App version changed: 0.1.0 → 0.2.0",
            "NOTICE [lifecycle] App version changed: 0.2.0 → 0.1.0"}));
}

TEST_F(AppVersionTrackerTest, recordsNothingForAProgramWithoutAVersion)
{
    defaults.set("lastRunAppVersion", "0.1.0");
    launch("");

    EXPECT_EQ(defaults.writes().size(), 1U);
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(AppVersionTrackerTest, takesAnUnreadableLastVersionForAFirstRun)
{
    defaults.set("lastRunAppVersion", std::int64_t{1});
    launch("0.1.0");

    EXPECT_EQ(defaults.value("lastRunAppVersion"), PreferenceValue("0.1.0"));
    EXPECT_EQ(defaults.value("updatedFromVersion"), std::nullopt);
}

} // namespace
} // namespace brindlex
