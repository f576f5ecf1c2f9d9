#include "inputmethod/InputMethodConfig.h"

#include "foundation/JsonCoding.h"
#include "support/basics/JsonReading.h"
#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace brindlex {
namespace {

const std::string ruleID = "0E7A5C1E-3B52-4F64-9D1C-8A2B7D9F4E10";

InputMethodConfig fullConfig()
{
    return {
        .enabled = false,
        .rules
        = {{*Uuid::fromText(ruleID), {"com.example.Editor", "Editor", "/icon.png"}, "german"}},
        .domainRulesEnabled = true,
        .domainRules = {{*Uuid::fromText(ruleID), "example.com", "english"}},
        .showHUD = false,
    };
}

const std::string fullText = R"({"enabled":false,"rules":[{"id":")" + ruleID
    + R"(","app":{"bundleID":"com.example.Editor","displayName":"Editor","iconPath":"/icon.png"},)"
      R"("inputSourceID":"german"}],"domainRulesEnabled":true,"domainRules":[{"id":")"
    + ruleID + R"(","domainSuffix":"example.com","inputSourceID":"english"}],"showHUD":false})";

TEST(InputMethodConfig, isWrittenWithTheNamesOfItsFields)
{
    EXPECT_EQ(jsonText(toJson(fullConfig())), fullText);
}

TEST(InputMethodConfig, readsWhatItWrote)
{
    const auto config = readText<InputMethodConfig>(fullText);
    ASSERT_TRUE(config);
    EXPECT_EQ(*config, fullConfig());
}

TEST(InputMethodConfig, switchesByDefaultWithoutWebsiteRules)
{
    const auto config = readText<InputMethodConfig>("{}");
    ASSERT_TRUE(config);
    EXPECT_EQ(*config, InputMethodConfig{});
    EXPECT_TRUE(config->enabled);
    EXPECT_TRUE(config->rules.empty());
    EXPECT_FALSE(config->domainRulesEnabled);
    EXPECT_TRUE(config->domainRules.empty());
    EXPECT_TRUE(config->showHUD);
}

TEST(InputMethodConfig, takesTheDefaultForEachMissingOrNullKey)
{
    const auto document = *parseJson(fullText);
    const InputMethodConfig defaults;
    const auto with = [](auto InputMethodConfig::*member, auto value) {
        auto config = fullConfig();
        config.*member = value;
        return config;
    };
    const std::pair<std::string, InputMethodConfig> expected[] = {
        {"enabled", with(&InputMethodConfig::enabled, true)},
        {"rules", with(&InputMethodConfig::rules, defaults.rules)},
        {"domainRulesEnabled", with(&InputMethodConfig::domainRulesEnabled, false)},
        {"domainRules", with(&InputMethodConfig::domainRules, defaults.domainRules)},
        {"showHUD", with(&InputMethodConfig::showHUD, true)},
    };
    for (const auto& [key, config] : expected) {
        auto missing = document;
        missing.erase(key);
        EXPECT_EQ(fromJson<InputMethodConfig>(missing), config) << key;
        auto null = document;
        null[key] = nullptr;
        EXPECT_EQ(fromJson<InputMethodConfig>(null), config) << key;
    }
}

TEST(InputMethodConfig, isUnreadableWithAValueOfAnotherType)
{
    for (const char* text : {R"({"enabled":1})", R"({"enabled":"true"})", R"({"rules":{}})",
             R"({"rules":[null]})", R"({"domainRulesEnabled":0})", R"({"domainRules":"x"})",
             R"({"domainRules":[[]]})", R"({"showHUD":[]})", "[]", "null", "3", "\"text\"", "", "{",
             "{\"enabled\":true", "\xFF"})
        EXPECT_FALSE(readText<InputMethodConfig>(text)) << text;
}

TEST(InputMethodConfig, isUnreadableWithARuleThatLacksAKey)
{
    const auto document = *parseJson(fullText);
    for (const char* key : {"id", "app", "inputSourceID"}) {
        auto missing = document;
        missing["rules"][0].erase(key);
        EXPECT_FALSE(fromJson<InputMethodConfig>(missing)) << key;
        auto null = document;
        null["rules"][0][key] = nullptr;
        EXPECT_FALSE(fromJson<InputMethodConfig>(null)) << key;
    }
    for (const char* key : {"id", "domainSuffix", "inputSourceID"}) {
        auto missing = document;
        missing["domainRules"][0].erase(key);
        EXPECT_FALSE(fromJson<InputMethodConfig>(missing)) << key;
        auto null = document;
        null["domainRules"][0][key] = nullptr;
        EXPECT_FALSE(fromJson<InputMethodConfig>(null)) << key;
    }
    for (const char* key : {"bundleID", "displayName"}) {
        auto missing = document;
        missing["rules"][0]["app"].erase(key);
        EXPECT_FALSE(fromJson<InputMethodConfig>(missing)) << key;
    }
    auto wrongId = document;
    wrongId["rules"][0]["id"] = "not-a-uuid";
    EXPECT_FALSE(fromJson<InputMethodConfig>(wrongId));
}

TEST(InputMethodConfig, ignoresKeysThatItDoesNotKnow)
{
    EXPECT_EQ(
        readText<InputMethodConfig>(R"({"enabled":false,"newer":{"x":[1]}})")->enabled, false);
}

TEST(InputMethodConfig, keepsRepeatedRulesAsTheyAre)
{
    auto config = fullConfig();
    config.rules.push_back(config.rules.front());
    config.domainRules.push_back(config.domainRules.front());
    EXPECT_EQ(fromJson<InputMethodConfig>(toJson(config)), config);
}

TEST(InputMethodRule, isEqualInAllFieldsOnly)
{
    const auto rule = appRule("com.example.Editor", "german");
    auto other = rule;
    EXPECT_EQ(other, rule);
    other.app.iconPath = "/icon.png";
    EXPECT_NE(other, rule);
    other = rule;
    other.id = Uuid::random();
    EXPECT_NE(other, rule);
    other = rule;
    other.inputSourceID = "english";
    EXPECT_NE(other, rule);
}

TEST(InputMethodRule, hasItsPlaceInASet)
{
    const auto editor = appRule("com.example.Editor", "german");
    const auto mail = appRule("com.example.Mail", "german");
    const std::unordered_set<InputMethodRule> rules{editor, mail, editor};
    EXPECT_EQ(rules.size(), 2u);
    EXPECT_TRUE(rules.contains(mail));
}

TEST(DomainInputMethodRule, hasItsPlaceInASet)
{
    const auto shop = websiteRule("shop.example.com", "german");
    auto moved = shop;
    moved.inputSourceID = "english";
    const std::unordered_set<DomainInputMethodRule> rules{shop, moved, shop};
    EXPECT_EQ(rules.size(), 2u);
    EXPECT_TRUE(rules.contains(moved));
}

TEST(InputMethodConfig, readsAnySpellingOfASource)
{
    const auto config = fromJson<InputMethodConfig>(*parseJson(R"({
        "rules": [{"id": "6B29FC40-CA47-1067-B31D-00DD010662DA",
            "app": {"bundleID": "mail", "displayName": "Mail"}, "inputSourceID": "xkb:de::ger"}],
        "domainRules": [{"id": "7C9E6679-7425-40DE-944B-E07FC1F90AE7",
            "domainSuffix": "example.fr", "inputSourceID": "xkb:fr:oss:fre"}]})"));

    ASSERT_TRUE(config);
    EXPECT_EQ(config->rules[0].inputSourceID, "xkb:de::deu");
    EXPECT_EQ(config->domainRules[0].inputSourceID, "xkb:fr:oss:fra");
}

} // namespace
} // namespace brindlex
