#include "inputmethod/SmartInputMethodConfig.h"

#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

namespace brindlex {
namespace {

using Config = SmartInputMethodConfig;

TEST(SmartInputMethodConfig, hasADefaultThatIsNormal)
{
    Config config;
    config.normalizeStats();
    EXPECT_EQ(config, Config{});
}

TEST(SmartInputMethodConfig, normalizesEachEntryByTheSettings)
{
    Config config;
    config.appStats = {statsOf("a", samples(12, "german")), statsOf("b", samples(9, "english"))};
    config.normalizeStats();
    EXPECT_EQ(config.appStats[0].samples.size(), 10u);
    EXPECT_TRUE(config.appStats[0].isActive);
    EXPECT_EQ(config.appStats[1].recommendedInputSourceID, "english");
    EXPECT_FALSE(config.appStats[1].isActive);

    config.windowSize = SmartInputMethodWindowSize::twenty;
    config.normalizeStats();
    EXPECT_EQ(config.appStats[0].samples.size(), 10u);
    EXPECT_FALSE(config.appStats[0].isActive);
}

TEST(SmartInputMethodConfig, switchesALearnedRuleOffAndOn)
{
    auto config = learnedConfig(exampleEditor, "german");
    const auto before = config;

    config.setDisabled(exampleEditor, true);
    auto expected = before;
    expected.appStats[0].isDisabled = true;
    expected.appStats[0].isActive = false;
    EXPECT_EQ(config, expected);

    config.setDisabled(exampleEditor, false);
    EXPECT_EQ(config, before);
    config.setDisabled("com.example.Unknown", true);
    EXPECT_EQ(config, before);
}

TEST(SmartInputMethodConfig, switchesTheFirstOfSeveralEntriesOff)
{
    auto config = learnedConfig(exampleEditor, "german");
    config.appStats.push_back(config.appStats[0]);
    config.setDisabled(exampleEditor, true);
    EXPECT_TRUE(config.appStats[0].isDisabled);
    EXPECT_FALSE(config.appStats[1].isDisabled);
}

TEST(SmartInputMethodConfig, givesTheStatisticsOfARuleInForce)
{
    const auto config = learnedConfig(exampleEditor, "german");
    EXPECT_EQ(config.activeSmartStats(exampleEditor, today), config.appStats[0]);
}

TEST(SmartInputMethodConfig, givesNothingWhileSwitchedOff)
{
    auto config = learnedConfig(exampleEditor, "german");
    config.enabled = false;
    EXPECT_EQ(config.activeSmartStats(exampleEditor, today), std::nullopt);
}

TEST(SmartInputMethodConfig, givesNothingWithoutAnApplicationOrAnEntry)
{
    const auto config = learnedConfig(exampleEditor, "german");
    EXPECT_EQ(config.activeSmartStats(std::nullopt, today), std::nullopt);
    EXPECT_EQ(config.activeSmartStats("com.example.Unknown", today), std::nullopt);
    EXPECT_EQ(config.activeSmartStats("", today), std::nullopt);
}

TEST(SmartInputMethodConfig, givesNothingForARuleThatIsSwitchedOff)
{
    auto config = learnedConfig(exampleEditor, "german");
    config.setDisabled(exampleEditor, true);
    EXPECT_EQ(config.activeSmartStats(exampleEditor, today), std::nullopt);
}

TEST(SmartInputMethodConfig, appliesChangedSettingsAtOnceAndStoresNothing)
{
    auto config = learnedConfig(exampleEditor, "german");
    config.appStats[0].samples[0].inputSourceID = "english";
    config.appStats[0].samples[1].inputSourceID = "english";
    config.appStats[0].isActive = false;
    const auto before = config;

    const auto stats = config.activeSmartStats(exampleEditor, today);
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->recommendationPercent, 80);
    EXPECT_TRUE(stats->isActive);
    EXPECT_EQ(config, before);

    config.thresholdRatio = SmartInputMethodThresholdRatio::ninety;
    EXPECT_EQ(config.activeSmartStats(exampleEditor, today), std::nullopt);
    config.thresholdRatio = SmartInputMethodThresholdRatio::seventy;
    config.windowSize = SmartInputMethodWindowSize::twenty;
    EXPECT_EQ(config.activeSmartStats(exampleEditor, today), std::nullopt);
}

TEST(SmartInputMethodConfig, looksAtTheFirstOfSeveralEntries)
{
    auto config = learnedConfig(exampleEditor, "german");
    config.appStats.insert(config.appStats.begin(), statsOf(exampleEditor, samples(3, "english")));
    EXPECT_EQ(config.activeSmartStats(exampleEditor, today), std::nullopt);
    std::swap(config.appStats[0], config.appStats[1]);
    EXPECT_EQ(config.activeSmartStats(exampleEditor, today)->recommendedInputSourceID, "german");
}

} // namespace
} // namespace brindlex
