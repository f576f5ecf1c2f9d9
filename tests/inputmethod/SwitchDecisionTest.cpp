#include "inputmethod/SwitchDecision.h"

#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Context = InputMethodAutoSwitchContext;
using Decision = std::optional<InputMethodSwitchDecision>;
using Priority = SmartInputMethodPriority;
using Source = InputMethodSwitchDecisionSource;
using Text = std::optional<std::string>;

const std::string browser = "com.example.Browser";

/// A browser with a rule of each kind, each for a source of its own.
struct SwitchDecision : testing::Test {
    InputMethodConfig config{
        .rules = {appRule(browser, "manual")},
        .domainRulesEnabled = true,
        .domainRules = {websiteRule("example.com", "website")},
    };
    SmartInputMethodConfig smartConfig = learnedConfig(browser, "learned");
    Text bundleID = browser;
    Text host = "example.com";
    Text current = "other";
    bool allowsAppRules = true;

    const Decision byWebsite
        = InputMethodSwitchDecision{browser, "example.com", "website", Source::websiteRule};
    const Decision byManualRule
        = InputMethodSwitchDecision{browser, {}, "manual", Source::manualAppRule};
    const Decision byLearnedRule
        = InputMethodSwitchDecision{browser, {}, "learned", Source::smartAppRule};

    Decision decide() const
    {
        return resolveSwitchDecision(
            bundleID, host, current, config, &smartConfig, allowsAppRules, today);
    }
    Decision decideWithoutLearning() const
    {
        return resolveSwitchDecision(
            bundleID, host, current, config, nullptr, allowsAppRules, today);
    }
    std::optional<Context::Any> context() const
    {
        return resolveAutoSwitchContext(
            bundleID, host, current, config, &smartConfig, allowsAppRules, today);
    }
    void withoutWebsiteRule() { config.domainRules.clear(); }
    void withoutManualRule() { config.rules.clear(); }
    void withoutLearnedRule() { smartConfig.appStats.clear(); }
};

TEST_F(SwitchDecision, asksWebsiteThenManualThenLearnedRules)
{
    EXPECT_EQ(decide(), byWebsite);
    withoutWebsiteRule();
    EXPECT_EQ(decide(), byManualRule);
    withoutManualRule();
    EXPECT_EQ(decide(), byLearnedRule);
    withoutLearnedRule();
    EXPECT_EQ(decide(), Decision());
}

TEST_F(SwitchDecision, asksLearnedBeforeManualRulesIfWished)
{
    smartConfig.priority = Priority::beforeManualAppRules;
    EXPECT_EQ(decide(), byWebsite);
    withoutWebsiteRule();
    EXPECT_EQ(decide(), byLearnedRule);
    withoutLearnedRule();
    EXPECT_EQ(decide(), byManualRule);
    withoutManualRule();
    EXPECT_EQ(decide(), Decision());
}

TEST_F(SwitchDecision, asksLearnedRulesFirstIfWished)
{
    smartConfig.priority = Priority::highest;
    EXPECT_EQ(decide(), byLearnedRule);
    withoutLearnedRule();
    EXPECT_EQ(decide(), byWebsite);
    withoutWebsiteRule();
    EXPECT_EQ(decide(), byManualRule);
    withoutManualRule();
    EXPECT_EQ(decide(), Decision());
}

TEST_F(SwitchDecision, asksNoLearnedRulesWithoutLearning)
{
    EXPECT_EQ(decideWithoutLearning(), byWebsite);
    withoutWebsiteRule();
    EXPECT_EQ(decideWithoutLearning(), byManualRule);
    withoutManualRule();
    EXPECT_EQ(decideWithoutLearning(), Decision());
}

TEST_F(SwitchDecision, isNothingWhileSwitchingIsOff)
{
    config.enabled = false;
    for (const auto priority : allCases<Priority>()) {
        smartConfig.priority = priority;
        EXPECT_EQ(decide(), Decision());
        EXPECT_EQ(context(), std::nullopt);
    }
}

TEST_F(SwitchDecision, leavesOtherRulesAloneWhileLearnedOnesAreOff)
{
    smartConfig.enabled = false;
    for (const auto priority : allCases<Priority>()) {
        smartConfig.priority = priority;
        EXPECT_EQ(decide(), byWebsite);
    }
    withoutWebsiteRule();
    EXPECT_EQ(decide(), byManualRule);
    withoutManualRule();
    EXPECT_EQ(decide(), Decision());
}

TEST_F(SwitchDecision, asksWebsiteRulesOnlyWithoutApplicationRules)
{
    allowsAppRules = false;
    for (const auto priority : allCases<Priority>()) {
        smartConfig.priority = priority;
        EXPECT_EQ(decide(), byWebsite);
    }
    withoutWebsiteRule();
    for (const auto priority : allCases<Priority>()) {
        smartConfig.priority = priority;
        EXPECT_EQ(decide(), Decision());
    }
}

TEST_F(SwitchDecision, decidesByWebsiteWithoutAnApplication)
{
    bundleID.reset();
    smartConfig.priority = Priority::highest;
    EXPECT_EQ(decide(), Decision({std::nullopt, "example.com", "website", Source::websiteRule}));
    withoutWebsiteRule();
    EXPECT_EQ(decide(), Decision());
}

TEST_F(SwitchDecision, isNothingWhereTheSystemStandsAlready)
{
    current = "website";
    EXPECT_EQ(decide(), Decision());
    EXPECT_EQ(context(), std::nullopt);
    withoutWebsiteRule();
    EXPECT_EQ(decide(), byManualRule);
    current = "manual";
    EXPECT_EQ(decide(), Decision()) << "the learned rule below is not tried instead";
    withoutManualRule();
    EXPECT_EQ(decide(), byLearnedRule);
    current = "learned";
    EXPECT_EQ(decide(), Decision());
}

TEST_F(SwitchDecision, isNothingWhereTheSameLayoutHasAnotherLanguage)
{
    config.domainRules = {websiteRule("example.com", "xkb:in:eng:eng")};
    current = "xkb:in:eng:hin";
    EXPECT_EQ(decide(), Decision());
    current = "xkb:in::hin";
    EXPECT_NE(decide(), Decision());
}

TEST_F(SwitchDecision, isMadeWhileTheCurrentSourceIsUnknown)
{
    current.reset();
    EXPECT_EQ(decide(), byWebsite);
}

TEST_F(SwitchDecision, goesOnPastALearnedRuleThatIsNotInForce)
{
    smartConfig.priority = Priority::highest;
    smartConfig.setDisabled(browser, true);
    EXPECT_EQ(decide(), byWebsite);
    smartConfig.setDisabled(browser, false);
    smartConfig.windowSize = SmartInputMethodWindowSize::twenty;
    EXPECT_EQ(decide(), byWebsite);
}

TEST_F(SwitchDecision, asksTheTopApplicationsOfTheGivenTime)
{
    smartConfig.priority = Priority::highest;
    smartConfig.appLimit = SmartInputMethodAppLimit::top10;
    for (int number = 0; number < 10; ++number)
        smartConfig.appActivations["app" + std::to_string(number)] = std::vector<Date>(11, today);
    EXPECT_EQ(decide(), byWebsite);
    EXPECT_EQ(resolveSwitchDecision(
                  bundleID, host, current, config, &smartConfig, true, today + 15'552'001),
        byLearnedRule);
}

TEST_F(SwitchDecision, doesNotCareWhetherTheSourceExists)
{
    config.domainRules = {websiteRule("example.com", "")};
    EXPECT_EQ(decide(), Decision({browser, "example.com", "", Source::websiteRule}));
}

TEST_F(SwitchDecision, isForTheDomainOrTheApplication)
{
    EXPECT_EQ(context(), Context::Any(Context::Domain{"example.com"}));
    withoutWebsiteRule();
    EXPECT_EQ(context(), Context::Any(Context::App{browser}));
    withoutManualRule();
    EXPECT_EQ(context(), Context::Any(Context::App{browser}));
    withoutLearnedRule();
    EXPECT_EQ(context(), std::nullopt);
}

TEST(InputMethodSwitchDecision, isDescribedInOneLine)
{
    const auto described = [](const Text& bundleID, const Text& domain, Source source) {
        return description(InputMethodSwitchDecision{bundleID, domain, "xkb:de::deu", source});
    };
    EXPECT_EQ(described(browser, "example.com", Source::websiteRule),
        "xkb:de::deu for the website example.com in com.example.Browser, by its rule");
    EXPECT_EQ(described(browser, {}, Source::manualAppRule),
        "xkb:de::deu for com.example.Browser, by its rule");
    EXPECT_EQ(described(browser, {}, Source::smartAppRule),
        "xkb:de::deu for com.example.Browser, as learned");
    EXPECT_EQ(described({}, {}, Source::smartAppRule), "xkb:de::deu for unknown, as learned");
}

TEST(InputMethodAutoSwitchContext, isEqualInCaseAndText)
{
    const Context::Any app = Context::App{"x"};
    EXPECT_EQ(app, Context::Any(Context::App{"x"}));
    EXPECT_NE(app, Context::Any(Context::App{"y"}));
    EXPECT_NE(app, Context::Any(Context::Domain{"x"}));
}

} // namespace
} // namespace brindlex
