#include "inputmethod/SmartInputMethodConfig.h"

#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Config = SmartInputMethodConfig;

const AppIdentifier editorApp{exampleEditor, "Editor"};

TEST(SmartInputMethodConfig, makesAnEntryAtTheFirstSample)
{
    Config config;
    config.recordSample("german", editorApp, today);

    ASSERT_EQ(config.appStats.size(), 1u);
    SmartInputMethodAppStats expected;
    expected.id = config.appStats[0].id;
    expected.app = editorApp;
    expected.samples = {{config.appStats[0].samples.at(0).id, "german", today}};
    expected.recommendedInputSourceID = "german";
    expected.recommendationPercent = 100;
    expected.lastRecordedAt = today;
    EXPECT_EQ(config.appStats[0], expected);
    EXPECT_NE(expected.id, Uuid{});
    EXPECT_NE(expected.samples[0].id, Uuid{});
    EXPECT_NE(expected.samples[0].id, expected.id);
    EXPECT_TRUE(config.appActivations.empty());
}

TEST(SmartInputMethodConfig, appendsEntriesInTheOrderOfTheFirstSample)
{
    Config config;
    config.recordSample("german", {"z", "Z"}, today);
    config.recordSample("german", {"a", "A"}, today);
    config.recordSample("german", {"z", "Z"}, today);
    ASSERT_EQ(config.appStats.size(), 2u);
    EXPECT_EQ(config.appStats[0].app.bundleID, "z");
    EXPECT_EQ(config.appStats[0].samples.size(), 2u);
    EXPECT_EQ(config.appStats[1].app.bundleID, "a");
}

TEST(SmartInputMethodConfig, keepsTheNewestSamplesOfTheWindow)
{
    Config config;
    for (int number = 0; number < 11; ++number)
        config.recordSample(
            number < 3 ? "english" : "german", editorApp, Date{static_cast<double>(number)});

    const auto& stats = config.appStats.at(0);
    EXPECT_EQ(sourcesOf(stats.samples),
        (std::vector<std::string>{"english", "english", "german", "german", "german", "german",
            "german", "german", "german", "german"}));
    EXPECT_EQ(stats.samples.front().recordedAt, Date{1});
    EXPECT_EQ(stats.lastRecordedAt, Date{10});
    EXPECT_EQ(stats.recommendedInputSourceID, "german");
    EXPECT_EQ(stats.recommendationPercent, 80);
    EXPECT_TRUE(stats.isActive);
}

TEST(SmartInputMethodConfig, keepsTheApplicationAsItWasFirstSeen)
{
    Config config;
    config.recordSample("german", editorApp, today);
    config.recordSample("german", {exampleEditor, "Renamed", "/icon.png"}, today);
    EXPECT_EQ(config.appStats.at(0).app, editorApp);
    EXPECT_EQ(config.appStats.at(0).samples.size(), 2u);
}

TEST(SmartInputMethodConfig, recordsInTheFirstOfSeveralEntries)
{
    Config config;
    config.appStats = {statsOf(exampleEditor, {}), statsOf(exampleEditor, {})};
    config.recordSample("german", editorApp, today);
    EXPECT_EQ(config.appStats[0].samples.size(), 1u);
    EXPECT_TRUE(config.appStats[1].samples.empty());
}

TEST(SmartInputMethodConfig, notesATimeThatWentBackwards)
{
    Config config;
    config.recordSample("german", editorApp, Date{100});
    config.recordSample("german", editorApp, Date{50});
    EXPECT_EQ(config.appStats.at(0).samples.at(1).recordedAt, Date{50});
    EXPECT_EQ(config.appStats.at(0).lastRecordedAt, Date{50});
}

TEST(SmartInputMethodConfig, notesManualSwitchesInOrder)
{
    Config config;
    config.recordActivation(exampleEditor, today);
    config.recordActivation("a", today);
    config.recordActivation(exampleEditor, today + 1);
    EXPECT_EQ(config.appActivations,
        (std::map<std::string, std::vector<Date>>{
            {exampleEditor, {today, today + 1}}, {"a", {today}}}));
    EXPECT_TRUE(config.appStats.empty());
}

TEST(SmartInputMethodConfig, dropsTheOldestOf501ManualSwitches)
{
    Config config;
    for (int number = 0; number < 500; ++number)
        config.recordActivation(exampleEditor, today + number);
    EXPECT_EQ(config.appActivations[exampleEditor].size(), 500u);
    EXPECT_EQ(config.appActivations[exampleEditor].front(), today);

    config.recordActivation(exampleEditor, today + 500);
    EXPECT_EQ(config.appActivations[exampleEditor].size(), 500u);
    EXPECT_EQ(config.appActivations[exampleEditor].front(), today + 1);
    EXPECT_EQ(config.appActivations[exampleEditor].back(), today + 500);
}

TEST(SmartInputMethodConfig, dropsDownTo500FromAnOverlongRecord)
{
    Config config;
    config.appActivations[exampleEditor] = std::vector<Date>(2000, today);
    config.recordActivation(exampleEditor, today + 1);
    EXPECT_EQ(config.appActivations[exampleEditor].size(), 500u);
    EXPECT_EQ(config.appActivations[exampleEditor].back(), today + 1);
}

TEST(SmartInputMethodConfig, forgetsManualSwitchesOlderThan180Days)
{
    Config config;
    const Date justOld{std::nextafter((today - days180).secondsSinceReferenceDate, 0.0)};
    config.appActivations[exampleEditor]
        = {justOld, today - days180, today - days180 - 1, today - 1};
    config.appActivations["other"] = {justOld};
    config.recordActivation(exampleEditor, today);
    EXPECT_EQ(config.appActivations[exampleEditor],
        (std::vector<Date>{today - days180, today - 1, today}));
    EXPECT_EQ(config.appActivations["other"], std::vector<Date>{justOld});
}

TEST(SmartInputMethodConfig, keepsManualSwitchesFromTheFuture)
{
    Config config;
    config.recordActivation(exampleEditor, today);
    config.recordActivation(exampleEditor, today - 3600);
    EXPECT_EQ(config.appActivations[exampleEditor], (std::vector<Date>{today, today - 3600}));
}

} // namespace
} // namespace brindlex
