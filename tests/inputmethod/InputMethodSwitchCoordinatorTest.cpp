#include "inputmethod/InputMethodSwitchCoordinatorFixture.h"

namespace brindlex {
namespace {

TEST_F(InputMethodSwitchCoordinatorTest, observesAndHandlesTheFrontFromItsConstructionOn)
{
    change([](auto& config) { config.rules = {rule("editor", german)}; });

    makeCoordinator();

    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::observing);
    EXPECT_EQ(computer.inputSources.attempts(), std::vector<std::string>{german});
}

TEST_F(InputMethodSwitchCoordinatorTest, handlesBothSettingsDuringItsConstruction)
{
    makeCoordinator();

    const auto& writes = computer.defaults.writes();
    ASSERT_EQ(writes.size(), 4u) << "two for each of two events";
    for (const auto& [key, object] : writes)
        EXPECT_EQ(key, "smartInputMethodConfig");
}

TEST_F(InputMethodSwitchCoordinatorTest, tellsTheMachineOfAnActivationWithoutAnApplication)
{
    start();

    computer.applications.bringToFront({ProcessIdentity{2}, {}, {}, "nameless"});

    EXPECT_EQ(coordinator->state().frontmostBundleID, std::nullopt);
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

    computer.applications.bringToFront(application(2, "mail"));
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(selected(), german);
    EXPECT_EQ(labels, std::vector<std::string>{"German"});
    EXPECT_TRUE(stats().empty()) << "the echo of the program's own selection is no sample";
}

TEST_F(InputMethodSwitchCoordinatorTest, learnsAManualChangeAndKeepsIt)
{
    start();

    computer.inputSources.userSelects(german);
    computer.mainThread.runUntilIdle();

    ASSERT_EQ(stats().size(), 1u);
    EXPECT_EQ(stats()[0].app, (AppIdentifier{"editor", "editor name", {}}));
    ASSERT_EQ(stats()[0].samples.size(), 1u);
    EXPECT_EQ(stats()[0].samples[0].inputSourceID, german);
    EXPECT_EQ(SmartInputMethodConfigStore(computer.defaults).config().value().appStats, stats());
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

    computer.applications.bringToFront(application(2, "mail"));
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(lifecycle, std::vector<std::string>{"observing"});
    EXPECT_EQ(coordinator->state().lifecycle, SwitchState::Lifecycle::stopped);
}

TEST_F(InputMethodSwitchCoordinatorTest, hearsNothingMoreAfterStop)
{
    change([](auto& config) { config.rules = {rule("mail", german)}; });
    start();

    coordinator->dispatch(SwitchEvent::Stop{});
    const auto state = coordinator->state();
    const auto writes = computer.defaults.writes().size();
    computer.applications.bringToFront(application(2, "mail"));
    computer.inputSources.userSelects(german);
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(computer.inputSources.attempts(), std::vector<std::string>{});
    EXPECT_TRUE(stats().empty());
    EXPECT_EQ(coordinator->state(), state);
    EXPECT_EQ(computer.defaults.writes().size(), writes) << "each event writes";
    EXPECT_EQ(computer.mainThread.timers(), 0u);
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

    computer.applications.bringToFront(application(2, "mail"));
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(labels.size(), 1u);
    EXPECT_EQ(computer.inputSources.attempts(), std::vector<std::string>{german});
}

TEST_F(InputMethodSwitchCoordinatorTest, doesNothingAtAllForALabelThatNobodyWants)
{
    change([](auto& config) { config.rules = {rule("mail", german)}; });
    start();
    coordinator->onSwitch = nullptr;

    computer.applications.bringToFront(application(2, "mail"));
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(selected(), german);
}

TEST_F(InputMethodSwitchCoordinatorTest, warnsInTheLogWhenASelectionFails)
{
    change([](auto& config) { config.rules = {rule("mail", "gone")}; });
    start();

    computer.applications.bringToFront(application(2, "mail"));
    computer.mainThread.runUntilIdle();

    EXPECT_EQ(log.lines().back(), "WARN [input-method] Failed to select gone for mail");
    EXPECT_TRUE(labels.empty());
}

TEST_F(InputMethodSwitchCoordinatorTest, writesTheLearningRecordTwiceForEveryEvent)
{
    start();
    const auto before = computer.defaults.writes().size();

    coordinator->dispatch(SwitchEvent::InputSourceChanged{});

    const auto& writes = computer.defaults.writes();
    ASSERT_EQ(writes.size(), before + 2);
    EXPECT_EQ(writes[before].first, "smartInputMethodConfig");
    EXPECT_EQ(writes[before], writes[before + 1]);
}

} // namespace
} // namespace brindlex
