#include "inputmethod/SmartInputMethodForgetting.h"

#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

SmartInputMethodConfig configOfTwo()
{
    auto config = learnedConfig("com.example.Editor", "german");
    config.appStats.push_back(statsOf("com.example.Mail", samples(10, "english")));
    config.normalizeStats();
    for (auto& stats : config.appStats) {
        stats.isDisabled = true;
        stats.lastRecordedAt = Date{540};
        config.appActivations[stats.app.bundleID] = {Date{1}, Date{2}};
    }
    return config;
}

TEST(SmartInputMethodForgetting, clearsOneFieldAfterTheOther)
{
    auto config = configOfTwo();
    auto expected = config;
    const auto steps = clearStats(config, config.appStats[0].id);
    ASSERT_EQ(steps.size(), 6u);

    steps[0](config);
    expected.appStats[0].samples.clear();
    EXPECT_EQ(config, expected);
    steps[1](config);
    expected.appStats[0].recommendedInputSourceID.reset();
    EXPECT_EQ(config, expected);
    steps[2](config);
    expected.appStats[0].recommendationPercent = 0;
    EXPECT_EQ(config, expected);
    steps[3](config);
    expected.appStats[0].isActive = false;
    EXPECT_EQ(config, expected);
    steps[4](config);
    expected.appStats[0].lastRecordedAt.reset();
    EXPECT_EQ(config, expected);
    steps[5](config);
    expected.appActivations.erase("com.example.Editor");
    EXPECT_EQ(config, expected);
}

TEST(SmartInputMethodForgetting, clearsWithRefreshesInBetween)
{
    auto config = configOfTwo();
    const auto id = config.appStats[1].id;
    auto expected = config;
    expected.appStats[1] = statsOf("com.example.Mail", {});
    expected.appStats[1].id = id;
    expected.appStats[1].isDisabled = true;
    expected.appActivations.erase("com.example.Mail");
    expected.normalizeStats();

    for (const auto& step : clearStats(config, id)) {
        step(config);
        config.normalizeStats();
    }

    EXPECT_EQ(config, expected);
}

TEST(SmartInputMethodForgetting, deletesTheEntryAndThenTheManualSwitches)
{
    auto config = configOfTwo();
    auto expected = config;
    const auto steps = deleteStats(config, config.appStats[0].id);
    ASSERT_EQ(steps.size(), 2u);

    steps[0](config);
    expected.appStats.erase(expected.appStats.begin());
    EXPECT_EQ(config, expected);
    steps[1](config);
    expected.appActivations.erase("com.example.Editor");
    EXPECT_EQ(config, expected);
}

TEST(SmartInputMethodForgetting, deletesAllEntriesWithTheIdentity)
{
    auto config = configOfTwo();
    config.appStats.push_back(config.appStats[0]);
    for (const auto& step : deleteStats(config, config.appStats[0].id))
        step(config);
    ASSERT_EQ(config.appStats.size(), 1u);
    EXPECT_EQ(config.appStats[0].app.bundleID, "com.example.Mail");
}

TEST(SmartInputMethodForgetting, doesNothingForAnUnknownIdentity)
{
    EXPECT_TRUE(clearStats(configOfTwo(), Uuid::random()).empty());
    EXPECT_TRUE(deleteStats(configOfTwo(), Uuid::random()).empty());
}

TEST(SmartInputMethodForgetting, outlivesTheEntry)
{
    auto config = configOfTwo();
    const auto steps = clearStats(config, config.appStats[0].id);
    config.appStats.clear();
    const auto emptied = [&] {
        auto expected = config;
        expected.appActivations.erase("com.example.Editor");
        return expected;
    }();
    for (const auto& step : steps)
        step(config);
    EXPECT_EQ(config, emptied);
}

} // namespace
} // namespace brindlex
