#include "inputmethod/SwitchReducerFixture.h"

#include <algorithm>

namespace brindlex {
namespace {

TEST_F(SwitchReducer, selectsWhatTheRuleSays)
{
    begin();
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch"}}));

    SwitchState expected;
    expected.lifecycle = Lifecycle::observing;
    expected.frontmostBundleID = editor;
    expected.lastInputSourceID = english;
    expected.ignoreWindow = {german, computer.now + 1.0};
    expected.override = {Context::App{editor}, Context::App{editor}, german};
    expected.learning = {{editor, "Name of " + editor}, english};
    EXPECT_EQ(state, expected);
    EXPECT_EQ(computer.selections, Texts{german});
}

TEST_F(SwitchReducer, asksTheComputerInOrder)
{
    config.domainRulesEnabled = true;
    begin();
    activate(editor);
    EXPECT_EQ(computer.calls,
        (Texts{"appIdentifier", "currentInputSourceID", "isSupportedBrowser",
            "currentInputSourceID", "systemTime", "now", "selectInputSource",
            "currentInputSourceLocalizedName"}));
}

TEST_F(SwitchReducer, opensTheWindowBeforeItSelects)
{
    begin();
    std::optional<SwitchState::IgnoreWindow> seen;
    auto environment = computer.environment();
    environment.selectInputSource = [&](const std::string&) {
        seen = state.ignoreWindow;
        return true;
    };
    brindlex::reduce(Event::AppActivated{editor}, state, smartConfig, config, environment);
    EXPECT_EQ(seen, (SwitchState::IgnoreWindow{german, computer.now + 1.0}));
}

TEST_F(SwitchReducer, notesEachSwitchThatWasMade)
{
    const InputMethodSwitchDecision switched{
        editor, {}, german, InputMethodSwitchDecisionSource::manualAppRule};
    begin();
    computer.refusedSources = {german};
    activate(editor);
    EXPECT_TRUE(computer.switches.empty());

    computer.refusedSources.clear();
    activate(editor);
    EXPECT_EQ(computer.switches, std::vector{switched});
    activate(editor);
    EXPECT_EQ(computer.switches, std::vector{switched}) << "It is selected already.";
    EXPECT_EQ(computer.agreements, std::vector{switched});
}

TEST_F(SwitchReducer, showsNothingWithoutTheOverlay)
{
    begin();
    config.showHUD = false;
    EXPECT_EQ(activate(editor), Effects());
    EXPECT_EQ(computer.selections, Texts{german});
    EXPECT_EQ(computer.calls.back(), "selectInputSource");
}

TEST_F(SwitchReducer, showsTheIdentifierOfASourceWithoutAName)
{
    begin();
    computer.names.clear();
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"german"}}));
}

TEST_F(SwitchReducer, cutsTheLabel)
{
    begin();
    computer.names[german] = "Deutsch mit sehr langem Namen";
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch mit sehr lan..."}}));
    computer.names.clear();
    config.rules = {appRule(mail, "com.apple.keylayout.German")};
    EXPECT_EQ(activate(mail), Effects({Effect::FireHUD{"com.apple.keylayout...."}}));
}

TEST_F(SwitchReducer, doesNothingWhereTheSourceIsRight)
{
    begin();
    computer.inputSourceID = german;
    EXPECT_EQ(activate(editor), Effects());
    EXPECT_EQ(computer.selections, Texts());
    EXPECT_EQ(state.override, InputMethodAutoSwitchOverrideState{});
}

TEST_F(SwitchReducer, selectsWhileTheCurrentSourceIsUnknown)
{
    begin();
    computer.inputSourceID.reset();
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch"}}));
    computer.inputSourceID.reset();
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch"}}))
        << "an unknown source is not known to be the user's";
}

TEST_F(SwitchReducer, warnsOfAFailedSelection)
{
    begin();
    computer.refusedSources = {german};
    EXPECT_EQ(activate(editor),
        Effects({Effect::LogWarning{
            "Failed to select german for com.example.Editor", "input-method"}}));

    SwitchState expected;
    expected.lifecycle = Lifecycle::observing;
    expected.frontmostBundleID = editor;
    expected.lastInputSourceID = english;
    expected.override.lastVisitedContext = Context::App{editor};
    expected.learning = {{editor, "Name of " + editor}, english};
    EXPECT_EQ(state, expected);
}

TEST_F(SwitchReducer, triesAFailedSelectionAgain)
{
    begin();
    computer.refusedSources = {german};
    activate(editor);
    EXPECT_EQ(activate(editor).size(), 1u);
    EXPECT_EQ(computer.selections, Texts{german});
    computer.refusedSources.clear();
    EXPECT_EQ(activate(editor), Effects({Effect::FireHUD{"Deutsch"}}));
}

TEST_F(SwitchReducer, namesTheWebsiteInTheWarning)
{
    config.domainRulesEnabled = true;
    begin();
    computer.refusedSources = {french};
    computer.page = "shop.example.com";
    EXPECT_EQ(activate(browser),
        Effects({Effect::StartBrowserPolling{},
            Effect::LogWarning{"Failed to select french for example.com", "input-method"}}));
}

TEST_F(SwitchReducer, warnsAlsoWithoutTheOverlay)
{
    begin();
    config.showHUD = false;
    computer.refusedSources = {german};
    EXPECT_EQ(activate(editor).size(), 1u);
}

TEST_F(SwitchReducer, selectsNothingWithoutAnIdentifier)
{
    begin();
    activate(mail);
    const auto session = state.learning;
    EXPECT_EQ(reduce(Event::AppActivated{}), Effects());
    EXPECT_EQ(state.frontmostBundleID, std::nullopt);
    EXPECT_EQ(state.learning, session);
    EXPECT_EQ(computer.selections, Texts());
}

TEST_F(SwitchReducer, switchesForTheWebsiteInFront)
{
    config.domainRulesEnabled = true;
    begin();
    computer.page = "shop.example.com";
    EXPECT_EQ(
        activate(browser), Effects({Effect::StartBrowserPolling{}, Effect::FireHUD{"Français"}}));
    EXPECT_EQ(state.override,
        (InputMethodAutoSwitchOverrideState{
            Context::Domain{"example.com"}, Context::Domain{"example.com"}, french}));
}

TEST_F(SwitchReducer, switchesByNoRuleWhileThePageIsUnknown)
{
    config.domainRulesEnabled = true;
    config.rules.push_back(appRule(browser, german));
    smartConfig = learnedConfig(browser, german);
    smartConfig.priority = SmartInputMethodPriority::highest;
    begin();
    EXPECT_EQ(activate(browser), Effects({Effect::StartBrowserPolling{}}));
    EXPECT_EQ(tick(std::nullopt), Effects());
    EXPECT_EQ(computer.selections, Texts());
}

TEST_F(SwitchReducer, fallsBackToTheBrowsersRuleOnAPageWithoutOne)
{
    config.domainRulesEnabled = true;
    config.rules.push_back(appRule(browser, german));
    begin();
    activate(browser);
    EXPECT_EQ(tick("other.org"), Effects({Effect::FireHUD{"Deutsch"}}));
    EXPECT_EQ(state.override.lastAutomaticContext, Context::Any(Context::App{browser}));
}

TEST_F(SwitchReducer, usesTheBrowsersRuleAtOnceWithoutWebsiteRules)
{
    config.rules.push_back(appRule(browser, german));
    begin();
    EXPECT_EQ(activate(browser), Effects({Effect::FireHUD{"Deutsch"}}));
    EXPECT_EQ(std::count(computer.calls.begin(), computer.calls.end(), "currentBrowserHost"), 0);
}

TEST_F(SwitchReducer, switchesByALearnedRule)
{
    smartConfig = learnedConfig(mail, german);
    begin();
    EXPECT_EQ(activate(mail), Effects({Effect::FireHUD{"Deutsch"}}));
}

TEST_F(SwitchReducer, judgesLearnedRulesByTheSystemClock)
{
    smartConfig = learnedConfig(mail, german);
    smartConfig.appLimit = SmartInputMethodAppLimit::top10;
    for (int number = 0; number < 10; ++number)
        smartConfig.appActivations["app" + std::to_string(number)]
            = std::vector<Date>(11, computer.systemTime);
    begin();
    EXPECT_EQ(activate(mail), Effects());
    computer.systemTime = computer.systemTime + 15'552'001;
    EXPECT_EQ(activate(mail), Effects({Effect::FireHUD{"Deutsch"}}));
}

TEST_F(SwitchReducer, survivesHostileText)
{
    const std::string megabyte(1024 * 1024, '\xFF');
    const std::string nul("a\0b", 3);
    config.rules = {appRule(megabyte, nul), appRule(nul, megabyte), appRule("", "")};
    config.showHUD = true;
    begin();
    EXPECT_EQ(activate(megabyte), Effects({Effect::FireHUD{nul}}));
    EXPECT_EQ(activate(nul).size(), 1u);
    EXPECT_EQ(computer.selections, Texts{megabyte});
    EXPECT_EQ(activate(""), Effects({Effect::FireHUD{""}}));
}

} // namespace
} // namespace brindlex
