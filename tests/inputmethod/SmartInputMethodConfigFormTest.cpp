#include "inputmethod/SmartInputMethodConfig.h"

#include "foundation/JsonCoding.h"
#include "support/basics/JsonReading.h"
#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Config = SmartInputMethodConfig;

Config fullRecord()
{
    auto config = learnedConfig(exampleEditor, "german");
    config.learningEnabled = false;
    config.priority = SmartInputMethodPriority::highest;
    config.thresholdRatio = SmartInputMethodThresholdRatio::ninety;
    config.windowSize = SmartInputMethodWindowSize::thirty;
    config.appLimit = SmartInputMethodAppLimit::unlimited;
    config.appStats[0].lastRecordedAt = Date{12.5};
    config.appActivations = {{exampleEditor, {Date{1.5}, Date{-2}}}, {"", {}}};
    config.normalizeStats();
    return config;
}

TEST(SmartInputMethodConfig, learnsWithoutDecidingByDefault)
{
    const auto config = readText<Config>("{}");
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

TEST(SmartInputMethodConfig, isWrittenWithTheNamesOfItsFields)
{
    auto config = fullRecord();
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
    const auto config = fullRecord();
    EXPECT_EQ(fromJson<Config>(*parseJson(jsonText(toJson(config)))), config);
}

TEST(SmartInputMethodConfig, takesTheDefaultForEachMissingOrNullKey)
{
    auto config = fullRecord();
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
    EXPECT_TRUE(readText<Config>(R"({"appStats":null})")->appStats.empty());
}

TEST(SmartInputMethodConfig, fillsInWhatAnEntryLacks)
{
    const auto config
        = readText<Config>(R"({"appStats":[{"app":{"bundleID":"a","displayName":"A"}}]})");
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
        EXPECT_FALSE(readText<Config>(text)) << text;
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
        EXPECT_FALSE(readText<Config>(text)) << text;
}

TEST(SmartInputMethodConfig, isNormalAfterReading)
{
    auto stored = learnedConfig(exampleEditor, "german");
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

} // namespace
} // namespace brindlex
