#include "inputmethod/SmartInputMethodConfig.h"

#include "support/SwitchRecords.h"
#include "support/SwitchText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace brindlex {
namespace {

using Config = SmartInputMethodConfig;

const std::string editor = "com.example.Editor";
const AppIdentifier editorApp{editor, "Editor"};
constexpr Date now{800'000'000};
constexpr Seconds days180 = 15'552'000;

Result<Config, JsonProblem> read(const std::string& text)
{
    const auto document = parseJson(text);
    if (!document)
        return fail(document.error());
    return fromJson<Config>(*document);
}

TEST(SmartInputMethodConfig, learnsWithoutDecidingByDefault)
{
    const auto config = read("{}");
    ASSERT_TRUE(config);
    EXPECT_EQ(*config, Config{});
    EXPECT_FALSE(config->enabled);
    EXPECT_TRUE(config->learningEnabled);
    EXPECT_EQ(config->priority, SmartInputMethodPriority::afterManualRules);
    EXPECT_EQ(config->thresholdRatio, SmartInputMethodThresholdRatio::eighty);
    EXPECT_EQ(config->windowSize, SmartInputMethodWindowSize::ten);
    EXPECT_EQ(config->appLimit, SmartInputMethodAppLimit::top20);
    EXPECT_TRUE(config->appStats.empty());
    EXPECT_TRUE(config->appActivations.empty());
}

TEST(SmartInputMethodConfig, hasADefaultThatIsNormal)
{
    Config config;
    config.normalizeStats();
    EXPECT_EQ(config, Config{});
}

Config full()
{
    auto config = learnedConfig(editor, "german");
    config.learningEnabled = false;
    config.priority = SmartInputMethodPriority::highest;
    config.thresholdRatio = SmartInputMethodThresholdRatio::ninety;
    config.windowSize = SmartInputMethodWindowSize::thirty;
    config.appLimit = SmartInputMethodAppLimit::unlimited;
    config.appStats[0].lastRecordedAt = Date{12.5};
    config.appActivations = {{editor, {Date{1.5}, Date{-2}}}, {"", {}}};
    config.normalizeStats();
    return config;
}

TEST(SmartInputMethodConfig, isWrittenWithTheNamesOfItsFields)
{
    auto config = full();
    config.appStats[0].samples.resize(1);
    config.normalizeStats();
    const auto statsId = config.appStats[0].id.text();
    const auto sampleId = config.appStats[0].samples[0].id.text();
    EXPECT_EQ(jsonText(toJson(config)),
        R"({"enabled":true,"learningEnabled":false,"priority":"highest","thresholdRatio":90,)"
        R"("windowSize":30,"appLimit":"unlimited","appStats":[{"id":")"
            + statsId
            + R"(","app":{"bundleID":"com.example.Editor","displayName":"Name of )"
              R"(com.example.Editor"},"samples":[{"id":")"
            + sampleId
            + R"(","inputSourceID":"german","recordedAt":0.0}],"recommendedInputSourceID":)"
              R"("german","recommendationPercent":100,"isActive":false,"isDisabled":false,)"
              R"("lastRecordedAt":12.5}],"appActivations":{"":[],"com.example.Editor":[1.5,-2.0]}})");
}

TEST(SmartInputMethodConfig, readsWhatItWrote)
{
    const auto config = full();
    EXPECT_EQ(fromJson<Config>(*parseJson(jsonText(toJson(config)))), config);
}

TEST(SmartInputMethodConfig, takesTheDefaultForEachMissingOrNullKey)
{
    auto config = full();
    config.appStats.clear();
    const auto document = toJson(config);
    const auto expectDefault = [&](const char* key, auto Config::*member) {
        auto expected = config;
        expected.*member = Config{}.*member;
        EXPECT_NE(expected, config) << key;
        auto missing = document;
        missing.erase(key);
        EXPECT_EQ(fromJson<Config>(missing), expected) << key;
        auto null = document;
        null[key] = nullptr;
        EXPECT_EQ(fromJson<Config>(null), expected) << key;
    };
    expectDefault("enabled", &Config::enabled);
    expectDefault("learningEnabled", &Config::learningEnabled);
    expectDefault("priority", &Config::priority);
    expectDefault("thresholdRatio", &Config::thresholdRatio);
    expectDefault("windowSize", &Config::windowSize);
    expectDefault("appLimit", &Config::appLimit);
    expectDefault("appActivations", &Config::appActivations);
    EXPECT_TRUE(read(R"({"appStats":null})")->appStats.empty());
}

TEST(SmartInputMethodConfig, fillsInWhatAnEntryLacks)
{
    const auto config = read(R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"}}]})");
    ASSERT_TRUE(config);
    ASSERT_EQ(config->appStats.size(), 1u);
    SmartInputMethodAppStats expected;
    expected.id = config->appStats[0].id;
    expected.app = {"a", "A"};
    EXPECT_EQ(config->appStats[0], expected);
    EXPECT_NE(expected.id, Uuid{});
}

TEST(SmartInputMethodConfig, isUnreadableWithAnUnknownOption)
{
    for (const char* text : {R"({"priority":"lowest"})", R"({"priority":0})",
             R"({"thresholdRatio":85})", R"({"thresholdRatio":"eighty"})", R"({"windowSize":40})",
             R"({"windowSize":"ten"})", R"({"appLimit":"top40"})", R"({"appLimit":10})"})
        EXPECT_FALSE(read(text)) << text;
}

TEST(SmartInputMethodConfig, isUnreadableWithAValueOfAnotherType)
{
    for (const char* text : {R"({"enabled":0})", R"({"learningEnabled":"yes"})",
             R"({"appStats":{}})", R"({"appStats":[{}]})", R"({"appStats":[{"app":null}]})",
             R"({"appStats":[{"app":{"bundleID":"a"}}]})",
             R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"},"samples":[3]}]})",
             R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"},"isActive":1}]})",
             R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"},"isDisabled":"x"}]})",
             R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"},"id":""}]})",
             R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"},"lastRecordedAt":""}]})",
             R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"},)"
             R"("recommendationPercent":0.5}]})",
             R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"},)"
             R"("recommendedInputSourceID":3}]})",
             R"({"appActivations":[]})", R"({"appActivations":{"a":3}})",
             R"({"appActivations":{"a":[null]}})", R"({"appActivations":{"a":["1"]}})",
             R"({"appActivations":{"a":[1e999]}})", "[]", "", "NaN"})
        EXPECT_FALSE(read(text)) << text;
}

TEST(SmartInputMethodConfig, isNormalAfterReading)
{
    auto stored = learnedConfig(editor, "german");
    stored.appStats[0].samples = samples(12, "english");
    stored.appStats[0].samples[0].inputSourceID = "german";
    stored.appStats[0].recommendedInputSourceID = "french";
    stored.appStats[0].recommendationPercent = 3'000'000'000;
    stored.appStats[0].isActive = false;

    auto expected = stored;
    expected.normalizeStats();
    ASSERT_EQ(expected.appStats[0].samples.size(), 10u);
    ASSERT_TRUE(expected.appStats[0].isActive);
    EXPECT_EQ(fromJson<Config>(toJson(stored)), expected);
}

TEST(SmartInputMethodConfig, keepsTextThatIsNoJson)
{
    auto config = learnedConfig(std::string("a\0b", 3), "\"quoted\" \\ \n 例");
    EXPECT_EQ(fromJson<Config>(*parseJson(jsonText(toJson(config)))), config);
}

TEST(SmartInputMethodConfig, staysReadableWithBytesThatAreNotText)
{
    const auto config = learnedConfig("a\xFF", "\xC3");
    const auto reread = fromJson<Config>(*parseJson(jsonText(toJson(config))));
    ASSERT_TRUE(reread);
    EXPECT_EQ(reread->appStats[0].app.bundleID, "a\uFFFD");
}

TEST(SmartInputMethodConfig, makesAnEntryAtTheFirstSample)
{
    Config config;
    config.recordSample("german", editorApp, now);

    ASSERT_EQ(config.appStats.size(), 1u);
    SmartInputMethodAppStats expected;
    expected.id = config.appStats[0].id;
    expected.app = editorApp;
    expected.samples = {{config.appStats[0].samples.at(0).id, "german", now}};
    expected.recommendedInputSourceID = "german";
    expected.recommendationPercent = 100;
    expected.lastRecordedAt = now;
    EXPECT_EQ(config.appStats[0], expected);
    EXPECT_NE(expected.id, Uuid{});
    EXPECT_NE(expected.samples[0].id, Uuid{});
    EXPECT_NE(expected.samples[0].id, expected.id);
    EXPECT_TRUE(config.appActivations.empty());
}

TEST(SmartInputMethodConfig, appendsEntriesInTheOrderOfTheFirstSample)
{
    Config config;
    config.recordSample("german", {"z", "Z"}, now);
    config.recordSample("german", {"a", "A"}, now);
    config.recordSample("german", {"z", "Z"}, now);
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
    config.recordSample("german", editorApp, now);
    config.recordSample("german", {editor, "Renamed", "/icon.png"}, now);
    EXPECT_EQ(config.appStats.at(0).app, editorApp);
    EXPECT_EQ(config.appStats.at(0).samples.size(), 2u);
}

TEST(SmartInputMethodConfig, recordsInTheFirstOfSeveralEntries)
{
    Config config;
    config.appStats = {statsOf(editor, {}), statsOf(editor, {})};
    config.recordSample("german", editorApp, now);
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
    config.recordActivation(editor, now);
    config.recordActivation("a", now);
    config.recordActivation(editor, now + 1);
    EXPECT_EQ(config.appActivations,
        (std::map<std::string, std::vector<Date>>{{editor, {now, now + 1}}, {"a", {now}}}));
    EXPECT_TRUE(config.appStats.empty());
}

TEST(SmartInputMethodConfig, dropsTheOldestOf501ManualSwitches)
{
    Config config;
    for (int number = 0; number < 500; ++number)
        config.recordActivation(editor, now + number);
    EXPECT_EQ(config.appActivations[editor].size(), 500u);
    EXPECT_EQ(config.appActivations[editor].front(), now);

    config.recordActivation(editor, now + 500);
    EXPECT_EQ(config.appActivations[editor].size(), 500u);
    EXPECT_EQ(config.appActivations[editor].front(), now + 1);
    EXPECT_EQ(config.appActivations[editor].back(), now + 500);
}

TEST(SmartInputMethodConfig, dropsDownTo500FromAnOverlongRecord)
{
    Config config;
    config.appActivations[editor] = std::vector<Date>(2000, now);
    config.recordActivation(editor, now + 1);
    EXPECT_EQ(config.appActivations[editor].size(), 500u);
    EXPECT_EQ(config.appActivations[editor].back(), now + 1);
}

TEST(SmartInputMethodConfig, forgetsManualSwitchesOlderThan180Days)
{
    Config config;
    const Date justOld{std::nextafter((now - days180).secondsSinceReferenceDate, 0.0)};
    config.appActivations[editor] = {justOld, now - days180, now - days180 - 1, now - 1};
    config.appActivations["other"] = {justOld};
    config.recordActivation(editor, now);
    EXPECT_EQ(config.appActivations[editor], (std::vector<Date>{now - days180, now - 1, now}));
    EXPECT_EQ(config.appActivations["other"], std::vector<Date>{justOld});
}

TEST(SmartInputMethodConfig, keepsManualSwitchesFromTheFuture)
{
    Config config;
    config.recordActivation(editor, now);
    config.recordActivation(editor, now - 3600);
    EXPECT_EQ(config.appActivations[editor], (std::vector<Date>{now, now - 3600}));
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
    auto config = learnedConfig(editor, "german");
    const auto before = config;

    config.setDisabled(editor, true);
    auto expected = before;
    expected.appStats[0].isDisabled = true;
    expected.appStats[0].isActive = false;
    EXPECT_EQ(config, expected);

    config.setDisabled(editor, false);
    EXPECT_EQ(config, before);
    config.setDisabled("com.example.Unknown", true);
    EXPECT_EQ(config, before);
}

TEST(SmartInputMethodConfig, switchesTheFirstOfSeveralEntriesOff)
{
    auto config = learnedConfig(editor, "german");
    config.appStats.push_back(config.appStats[0]);
    config.setDisabled(editor, true);
    EXPECT_TRUE(config.appStats[0].isDisabled);
    EXPECT_FALSE(config.appStats[1].isDisabled);
}

TEST(SmartInputMethodConfig, givesTheStatisticsOfARuleInForce)
{
    const auto config = learnedConfig(editor, "german");
    EXPECT_EQ(config.activeSmartStats(editor, now), config.appStats[0]);
}

TEST(SmartInputMethodConfig, givesNothingWhileSwitchedOff)
{
    auto config = learnedConfig(editor, "german");
    config.enabled = false;
    EXPECT_EQ(config.activeSmartStats(editor, now), std::nullopt);
}

TEST(SmartInputMethodConfig, givesNothingWithoutAnApplicationOrAnEntry)
{
    const auto config = learnedConfig(editor, "german");
    EXPECT_EQ(config.activeSmartStats(std::nullopt, now), std::nullopt);
    EXPECT_EQ(config.activeSmartStats("com.example.Unknown", now), std::nullopt);
    EXPECT_EQ(config.activeSmartStats("", now), std::nullopt);
}

TEST(SmartInputMethodConfig, givesNothingForARuleThatIsSwitchedOff)
{
    auto config = learnedConfig(editor, "german");
    config.setDisabled(editor, true);
    EXPECT_EQ(config.activeSmartStats(editor, now), std::nullopt);
}

TEST(SmartInputMethodConfig, appliesChangedSettingsAtOnceAndStoresNothing)
{
    auto config = learnedConfig(editor, "german");
    config.appStats[0].samples[0].inputSourceID = "english";
    config.appStats[0].samples[1].inputSourceID = "english";
    config.appStats[0].isActive = false;
    const auto before = config;

    const auto stats = config.activeSmartStats(editor, now);
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->recommendationPercent, 80);
    EXPECT_TRUE(stats->isActive);
    EXPECT_EQ(config, before);

    config.thresholdRatio = SmartInputMethodThresholdRatio::ninety;
    EXPECT_EQ(config.activeSmartStats(editor, now), std::nullopt);
    config.thresholdRatio = SmartInputMethodThresholdRatio::seventy;
    config.windowSize = SmartInputMethodWindowSize::twenty;
    EXPECT_EQ(config.activeSmartStats(editor, now), std::nullopt);
}

TEST(SmartInputMethodConfig, looksAtTheFirstOfSeveralEntries)
{
    auto config = learnedConfig(editor, "german");
    config.appStats.insert(config.appStats.begin(), statsOf(editor, samples(3, "english")));
    EXPECT_EQ(config.activeSmartStats(editor, now), std::nullopt);
    std::swap(config.appStats[0], config.appStats[1]);
    EXPECT_EQ(config.activeSmartStats(editor, now)->recommendedInputSourceID, "german");
}

} // namespace
} // namespace brindlex
