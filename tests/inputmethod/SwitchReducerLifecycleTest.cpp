#include "inputmethod/SwitchReducerFixture.h"

#include <tuple>

namespace brindlex {
namespace {

TEST_F(SwitchReducer, beginsStopped)
{
    EXPECT_EQ(state.lifecycle, Lifecycle::stopped);
    EXPECT_EQ(state, SwitchState{});
    EXPECT_EQ(state.ignoreWindow, SwitchState::IgnoreWindow{});
}

TEST_F(SwitchReducer, observesFromTheStartOn)
{
    EXPECT_EQ(reduce(Event::Start{}), Effects({Effect::InstallObservers{}}));

    SwitchState expected;
    expected.lifecycle = Lifecycle::observing;
    expected.frontmostBundleID = mail;
    expected.lastInputSourceID = english;
    expected.learning = {{mail, "Name of " + mail}, english};
    EXPECT_EQ(state, expected);
}

TEST_F(SwitchReducer, switchesForTheApplicationInFrontAtTheStart)
{
    computer.frontmostBundleID = editor;
    EXPECT_EQ(
        reduce(Event::Start{}), Effects({Effect::InstallObservers{}, Effect::FireHUD{"Deutsch"}}));
    EXPECT_EQ(computer.selections, Texts{german});
}

TEST_F(SwitchReducer, pollsTheBrowserInFrontAtTheStart)
{
    config.domainRulesEnabled = true;
    computer.frontmostBundleID = browser;
    computer.page = "example.com";
    EXPECT_EQ(reduce(Event::Start{}),
        Effects({Effect::InstallObservers{}, Effect::StartBrowserPolling{},
            Effect::FireHUD{"Français"}}));
    EXPECT_EQ(state.lifecycle, Lifecycle::observingWithBrowserPolling);
}

TEST_F(SwitchReducer, doesNotInstallObserversTwice)
{
    reduce(Event::Start{});
    EXPECT_EQ(reduce(Event::Start{}), Effects());
    EXPECT_EQ(reduce(Event::ConfigEnabledChanged{}), Effects());
    EXPECT_EQ(state.lifecycle, Lifecycle::observing);
}

TEST_F(SwitchReducer, goesOnPollingAtAStartWithTheBrowserInFront)
{
    config.domainRulesEnabled = true;
    computer.frontmostBundleID = browser;
    for (const SwitchEvent::Any& event :
        {SwitchEvent::Any(Event::Start{}), SwitchEvent::Any(Event::ConfigEnabledChanged{})}) {
        begin(Lifecycle::observingWithBrowserPolling);
        EXPECT_EQ(reduce(event), Effects()) << text(event);
        EXPECT_EQ(state.lifecycle, Lifecycle::observingWithBrowserPolling) << text(event);
    }
    computer.frontmostBundleID = mail;
    EXPECT_EQ(reduce(Event::Start{}), Effects({Effect::StopBrowserPolling{}}));
    EXPECT_EQ(state.lifecycle, Lifecycle::observing);
}

TEST_F(SwitchReducer, startsWhenSwitchingIsTurnedOn)
{
    EXPECT_EQ(reduce(Event::ConfigEnabledChanged{}), Effects({Effect::InstallObservers{}}));
    EXPECT_EQ(state.lifecycle, Lifecycle::observing);
}

TEST_F(SwitchReducer, forgetsTheLastSourceWhenItIsUnknownAtTheStart)
{
    state.lastInputSourceID = german;
    computer.inputSourceID.reset();
    reduce(Event::Start{});
    EXPECT_EQ(state.lastInputSourceID, std::nullopt);
}

TEST_F(SwitchReducer, asksForTheApplicationInFrontOnlyWhereItIsNotTold)
{
    for (const SwitchEvent::Any& event :
        {SwitchEvent::Any(Event::AppActivated{mail}), SwitchEvent::Any(Event::BrowserContextTick{}),
            SwitchEvent::Any(Event::Stop{}), SwitchEvent::Any(Event::InputSourceChanged{})}) {
        begin();
        reduce(event);
        EXPECT_EQ(
            std::count(computer.calls.begin(), computer.calls.end(), "currentFrontmostBundleID"), 0)
            << text(event);
    }
}

/// The lifecycle before, whether switching is on, and what comes out.
using SwitchedOff = std::tuple<SwitchState::Lifecycle, std::vector<SwitchEffect::Any>>;

class SwitchReducerOff : public SwitchReducer, public testing::WithParamInterface<SwitchedOff> { };

TEST_P(SwitchReducerOff, stopsForEveryEventThatWouldStart)
{
    const auto& [lifecycle, effects] = GetParam();
    for (const SwitchEvent::Any& event : {SwitchEvent::Any(Event::Start{}),
             SwitchEvent::Any(Event::ConfigEnabledChanged{}), SwitchEvent::Any(Event::Stop{})}) {
        begin(lifecycle);
        config.enabled = false;
        EXPECT_EQ(reduce(event), effects) << text(event);
        EXPECT_EQ(state.lifecycle, Lifecycle::stopped) << text(event);
        EXPECT_EQ(computer.calls, Texts()) << text(event);
    }
    begin(lifecycle);
    config.enabled = true;
    EXPECT_EQ(reduce(Event::Stop{}), effects);
    EXPECT_EQ(state.lifecycle, Lifecycle::stopped);
}

INSTANTIATE_TEST_SUITE_P(EachLifecycle, SwitchReducerOff,
    testing::Values(SwitchedOff{SwitchState::Lifecycle::stopped, {}},
        SwitchedOff{SwitchState::Lifecycle::observing, {SwitchEffect::RemoveObservers{}}},
        SwitchedOff{SwitchState::Lifecycle::observingWithBrowserPolling,
            {SwitchEffect::StopBrowserPolling{}, SwitchEffect::RemoveObservers{}}}));

TEST_F(SwitchReducer, forgetsTheSessionAndTheWindowAtAStop)
{
    begin();
    activate(editor);
    ASSERT_TRUE(state.ignoreWindow.deadline);
    auto expected = state;
    expected.lifecycle = Lifecycle::stopped;
    expected.learning.reset();
    expected.ignoreWindow = {};

    reduce(Event::Stop{});

    EXPECT_EQ(state, expected);
    EXPECT_EQ(state.frontmostBundleID, editor);
    EXPECT_EQ(state.lastInputSourceID, english);
    EXPECT_EQ(state.override.lastAutomaticInputSourceID, german);
}

TEST_F(SwitchReducer, pollsWhileABrowserIsInFront)
{
    config.domainRulesEnabled = true;
    begin();
    EXPECT_EQ(activate(browser), Effects({Effect::StartBrowserPolling{}}));
    EXPECT_EQ(state.lifecycle, Lifecycle::observingWithBrowserPolling);
    EXPECT_EQ(activate(browser), Effects());
    EXPECT_EQ(activate(mail), Effects({Effect::StopBrowserPolling{}}));
    EXPECT_EQ(state.lifecycle, Lifecycle::observing);
    EXPECT_EQ(activate(mail), Effects());
}

TEST_F(SwitchReducer, stopsPollingBeforeItSwitches)
{
    config.domainRulesEnabled = true;
    begin(Lifecycle::observingWithBrowserPolling);
    EXPECT_EQ(
        activate(editor), Effects({Effect::StopBrowserPolling{}, Effect::FireHUD{"Deutsch"}}));
}

TEST_F(SwitchReducer, doesNotPollWithoutWebsiteRules)
{
    begin();
    EXPECT_EQ(activate(browser), Effects());
    EXPECT_EQ(state.lifecycle, Lifecycle::observing);
}

TEST_F(SwitchReducer, followsWebsiteRulesTurnedOnAndOff)
{
    begin();
    computer.frontmostBundleID = browser;
    config.domainRulesEnabled = true;
    EXPECT_EQ(reduce(Event::DomainRulesEnabledChanged{}), Effects({Effect::StartBrowserPolling{}}));
    EXPECT_EQ(state.frontmostBundleID, browser);
    EXPECT_EQ(state.lifecycle, Lifecycle::observingWithBrowserPolling);

    config.domainRulesEnabled = false;
    EXPECT_EQ(reduce(Event::DomainRulesEnabledChanged{}), Effects({Effect::StopBrowserPolling{}}));
    EXPECT_EQ(state.lifecycle, Lifecycle::observing);
}

TEST_F(SwitchReducer, handlesTheApplicationInFrontWhenWebsiteRulesChange)
{
    begin();
    computer.frontmostBundleID = editor;
    EXPECT_EQ(reduce(Event::DomainRulesEnabledChanged{}), Effects({Effect::FireHUD{"Deutsch"}}));
    EXPECT_EQ(state.frontmostBundleID, editor);
    EXPECT_EQ(state.learning->app.bundleID, editor);
}

TEST_F(SwitchReducer, pollsAlsoWhenStoppedIfWebsiteRulesAreTurnedOn)
{
    config.domainRulesEnabled = true;
    computer.frontmostBundleID = browser;
    reduce(Event::Start{});
    reduce(Event::Stop{});
    EXPECT_EQ(reduce(Event::DomainRulesEnabledChanged{}), Effects({Effect::StartBrowserPolling{}}));
    EXPECT_EQ(state.lifecycle, Lifecycle::observingWithBrowserPolling);
}

TEST_F(SwitchReducer, onlyStopsPollingOnAnActivationWhileOff)
{
    config.enabled = false;
    config.domainRulesEnabled = true;
    begin(Lifecycle::observingWithBrowserPolling);
    auto expected = state;
    expected.frontmostBundleID = browser;
    expected.lifecycle = Lifecycle::observing;

    EXPECT_EQ(activate(browser), Effects({Effect::StopBrowserPolling{}}));
    EXPECT_EQ(state, expected);
    EXPECT_EQ(activate(browser), Effects());
    EXPECT_EQ(state, expected);
    EXPECT_EQ(computer.calls, Texts());
}

TEST_F(SwitchReducer, keepsTheSessionOnAnActivationWhileOff)
{
    begin();
    activate(mail);
    const auto session = state.learning;
    config.enabled = false;
    activate(editor);
    EXPECT_EQ(state.learning, session);
    EXPECT_EQ(state.frontmostBundleID, editor);
}

TEST_F(SwitchReducer, stopsPollingOnATickThatIsOutOfPlace)
{
    const auto polling = [&](bool enabled, bool domainRules, const std::string& frontmost) {
        config.enabled = enabled;
        config.domainRulesEnabled = domainRules;
        begin(Lifecycle::observingWithBrowserPolling);
        state.frontmostBundleID = frontmost;
    };
    for (const auto& [enabled, domainRules, frontmost] :
        {std::tuple{false, true, browser}, {true, false, browser}, {true, true, editor}}) {
        polling(enabled, domainRules, frontmost);
        EXPECT_EQ(tick("example.com"), Effects({Effect::StopBrowserPolling{}}));
        EXPECT_EQ(state.lifecycle, Lifecycle::observing);
        EXPECT_EQ(computer.selections, Texts());
        EXPECT_EQ(tick("example.com"), Effects());
    }
}

TEST_F(SwitchReducer, goesOnPollingAfterATick)
{
    config.domainRulesEnabled = true;
    begin(Lifecycle::observingWithBrowserPolling);
    state.frontmostBundleID = browser;
    EXPECT_EQ(tick(std::nullopt), Effects());
    EXPECT_EQ(tick("other.org"), Effects());
    EXPECT_EQ(state.lifecycle, Lifecycle::observingWithBrowserPolling);
}

} // namespace
} // namespace brindlex
