#include "inputmethod/InputMethodSwitchCoordinator.h"

#include "inputmethod/CoordinatedDesktop.h"

namespace brindlex {
namespace {

const std::string browser = "org.chromium.Chromium";

using InputMethodSwitchCoordinatorTest = CoordinatedDesktop;

TEST_F(InputMethodSwitchCoordinatorTest, observesAndHandlesTheFrontFromItsConstructionOn)
{
    change([](auto& config) { config.rules = {rule("editor", german)}; });

    makeCoordinator();

    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::observing);
    EXPECT_EQ(desktop.inputSources.attempts(), std::vector<std::string>{german});
}

TEST_F(InputMethodSwitchCoordinatorTest, startOnlyRepeatsTheHandlingOfTheFront)
{
    start();
    const auto before = coordinator->state();

    coordinator->dispatch(SwitchEvent::Start{});

    EXPECT_EQ(coordinator->state(), before);
}

TEST_F(InputMethodSwitchCoordinatorTest, switchesWithTheApplicationAndShowsTheSourcesName)
{
    change([](auto& config) { config.rules = {rule("mail", german), rule("editor", us)}; });
    start();

    desktop.applications.bringToFront(application(2, "mail"));
    desktop.mainThread.runUntilIdle();

    EXPECT_EQ(selected(), german);
    EXPECT_EQ(labels, std::vector<std::string>{"German"});
    EXPECT_TRUE(stats().empty()) << "the echo of the program's own selection is no sample";
}

TEST_F(InputMethodSwitchCoordinatorTest, learnsAManualChangeAndKeepsIt)
{
    start();

    desktop.inputSources.userSelects(german);
    desktop.mainThread.runUntilIdle();

    ASSERT_EQ(stats().size(), 1u);
    EXPECT_EQ(stats()[0].app, (AppIdentifier{"editor", "editor name", {}}));
    ASSERT_EQ(stats()[0].samples.size(), 1u);
    EXPECT_EQ(stats()[0].samples[0].inputSourceID, german);
    EXPECT_EQ(SmartInputMethodConfigStore(desktop.defaults).config().value().appStats, stats());
}

TEST_F(InputMethodSwitchCoordinatorTest, takesTheNameOfAnApplicationFromItsBundle)
{
    desktop.bundles.install("/apps/mail.desktop", {"mail", "Mail & News", "Mail", {}});
    auto mail = application(2, "mail");
    mail.bundlePath = "/apps/mail.desktop";
    desktop.applications.bringToFront(mail);
    start();

    desktop.inputSources.userSelects(german);
    desktop.mainThread.runUntilIdle();

    ASSERT_EQ(stats().size(), 1u);
    EXPECT_EQ(stats()[0].app, (AppIdentifier{"mail", "Mail & News", {}}));
}

TEST_F(InputMethodSwitchCoordinatorTest, fallsBackToWhatTheRunningApplicationSays)
{
    auto broken = application(2, "broken");
    broken.bundlePath = "/apps/gone.desktop";
    broken.localizedName = {};
    desktop.applications.bringToFront(broken);
    start();

    desktop.inputSources.userSelects(german);
    desktop.mainThread.runUntilIdle();

    ASSERT_EQ(stats().size(), 1u);
    EXPECT_EQ(stats()[0].app, (AppIdentifier{"broken", "broken", {}}));
}

TEST_F(InputMethodSwitchCoordinatorTest, handlesAnEventFromInsideAnEffectAfterTheList)
{
    change([](auto& config) { config.rules = {rule("mail", german), rule("editor", us)}; });
    start();
    std::vector<std::string> lifecycle;
    coordinator->onSwitch = [&](const std::string&) {
        coordinator->dispatch(SwitchEvent::Stop{});
        lifecycle.push_back(coordinator->state().lifecycle == SwitchState::Lifecycle::stopped
                ? "stopped"
                : "observing");
    };

    desktop.applications.bringToFront(application(2, "mail"));
    desktop.mainThread.runUntilIdle();

    EXPECT_EQ(lifecycle, std::vector<std::string>{"observing"});
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::stopped);
}

TEST_F(InputMethodSwitchCoordinatorTest, hearsNothingMoreAfterStop)
{
    change([](auto& config) { config.rules = {rule("mail", german)}; });
    start();

    coordinator->dispatch(SwitchEvent::Stop{});
    desktop.applications.bringToFront(application(2, "mail"));
    desktop.inputSources.userSelects(german);
    desktop.mainThread.runUntilIdle();

    EXPECT_EQ(desktop.inputSources.attempts(), std::vector<std::string>{});
    EXPECT_TRUE(stats().empty());
    EXPECT_EQ(desktop.mainThread.timers(), 0u);
}

TEST_F(InputMethodSwitchCoordinatorTest, sendsAChangeOfEnabledOnceAndNothingForAnEqualOne)
{
    start();

    change([](auto& config) { config.enabled = false; });
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::stopped);

    coordinator->dispatch(SwitchEvent::DomainRulesEnabledChanged{});
    const auto before = coordinator->state();
    change([](auto& config) { config.showHUD = false; });
    EXPECT_EQ(coordinator->state(), before);

    change([](auto& config) { config.enabled = true; });
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::observing);
}

TEST_F(InputMethodSwitchCoordinatorTest, addsOneObserverOfEachKind)
{
    change([](auto& config) { config.rules = {rule("mail", german), rule("editor", us)}; });
    start();
    coordinator->dispatch(SwitchEvent::ConfigEnabledChanged{});
    coordinator->dispatch(SwitchEvent::Start{});

    desktop.applications.bringToFront(application(2, "mail"));
    desktop.mainThread.runUntilIdle();

    EXPECT_EQ(labels.size(), 1u);
    EXPECT_EQ(desktop.inputSources.attempts(), std::vector<std::string>{german});
}

TEST_F(InputMethodSwitchCoordinatorTest, doesNothingAtAllForALabelThatNobodyWants)
{
    change([](auto& config) { config.rules = {rule("mail", german)}; });
    start();
    coordinator->onSwitch = nullptr;

    desktop.applications.bringToFront(application(2, "mail"));
    desktop.mainThread.runUntilIdle();

    EXPECT_EQ(selected(), german);
}

TEST_F(InputMethodSwitchCoordinatorTest, warnsInTheLogWhenASelectionFails)
{
    change([](auto& config) { config.rules = {rule("mail", "gone")}; });
    start();

    desktop.applications.bringToFront(application(2, "mail"));
    desktop.mainThread.runUntilIdle();

    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"WARN [input-method] Failed to select gone for mail"});
    EXPECT_TRUE(labels.empty());
}

TEST_F(InputMethodSwitchCoordinatorTest, pollsABrowserEvery800MillisecondsWhileItIsInFront)
{
    change([](auto& config) {
        config.domainRulesEnabled = true;
        config.domainRules = {{Uuid::random(), "example.de", german}};
    });
    start();
    EXPECT_EQ(desktop.mainThread.timers(), 0u);

    desktop.applications.bringToFront(application(2, browser));
    desktop.mainThread.advance(0.01);
    EXPECT_EQ(desktop.mainThread.timers(), 1u);
    EXPECT_EQ(selected(), us);

    desktop.browserPages.setPage(browser, "https://www.example.de/seite");
    desktop.mainThread.advance(0.78);
    EXPECT_EQ(selected(), us);
    desktop.mainThread.advance(0.02);
    EXPECT_EQ(selected(), german);

    coordinator->dispatch(SwitchEvent::AppActivated{browser});
    desktop.mainThread.advance(0.01);
    EXPECT_EQ(desktop.mainThread.timers(), 1u) << "a live timer is kept";

    desktop.applications.bringToFront(application(1, "editor"));
    desktop.mainThread.advance(0.01);
    EXPECT_EQ(desktop.mainThread.timers(), 0u);
}

TEST_F(InputMethodSwitchCoordinatorTest, looksAtOnceWhenAPageHasBeenReadBesideTheMainThread)
{
    change([](auto& config) {
        config.domainRulesEnabled = true;
        config.domainRules = {{Uuid::random(), "example.de", german}};
    });
    desktop.browserPages.setPage(browser, "https://example.de/");
    start();

    desktop.applications.bringToFront(application(2, browser));
    desktop.mainThread.runUntilIdle();
    EXPECT_EQ(selected(), us) << "a page that was not read yet is an unknown one";
    desktop.mainThread.advance(0.002);

    EXPECT_EQ(selected(), german);
}

TEST_F(InputMethodSwitchCoordinatorTest, writesTheLearningRecordTwiceForEveryEvent)
{
    start();
    const auto before = desktop.defaults.writes().size();

    coordinator->dispatch(SwitchEvent::InputSourceChanged{});

    const auto& writes = desktop.defaults.writes();
    ASSERT_EQ(writes.size(), before + 2);
    EXPECT_EQ(writes[before].first, "smartInputMethodConfig");
    EXPECT_EQ(writes[before], writes[before + 1]);
}

} // namespace
} // namespace brindlex
