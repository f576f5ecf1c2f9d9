#include "inputmethod/SwitchReducerProperties.h"

#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brindlex {
namespace {

using Effects = std::vector<SwitchEffect::Any>;
using Lifecycle = SwitchState::Lifecycle;

template <typename Effect>
std::ptrdiff_t count(const Effects& effects)
{
    return std::count_if(effects.begin(), effects.end(),
        [](const auto& effect) { return std::holds_alternative<Effect>(effect); });
}

/// Whether it is an event of the desktop, which may find nothing to do and leave all as it is.
bool isOfTheDesktop(const SwitchEvent::Any& event)
{
    return std::holds_alternative<SwitchEvent::PlaceChangedInputSource>(event)
        || std::holds_alternative<SwitchEvent::SelectionUndone>(event)
        || std::holds_alternative<SwitchEvent::EnabledSourcesChanged>(event);
}

/// At most one selection, never of the source that is selected, and reported exactly once.
void checkSelections(const SwitchStep& step)
{
    const auto hud = count<SwitchEffect::FireHUD>(step.effects);
    const auto warnings = count<SwitchEffect::LogWarning>(step.effects);
    ASSERT_LE(step.computer.selections.size(), 1u);
    if (step.computer.selections.empty()) {
        EXPECT_EQ(hud, 0);
        EXPECT_LE(
            warnings, std::holds_alternative<SwitchEvent::SelectionUndone>(step.event) ? 1 : 0);
        return;
    }
    const auto& selected = step.computer.selections[0];
    const bool failed = step.computer.refusedSources.contains(selected);
    EXPECT_TRUE(step.config.enabled);
    EXPECT_NE(selected, step.sourceBefore);
    EXPECT_EQ(warnings, failed ? 1 : 0);
    EXPECT_EQ(hud, !failed && step.config.showHUD ? 1 : 0);
}

/// Effects on observers and polling come first, the overlay or the warning last.
void checkOrder(const SwitchStep& step)
{
    for (std::size_t at = 0; at + 1 < step.effects.size(); ++at) {
        EXPECT_FALSE(std::holds_alternative<SwitchEffect::FireHUD>(step.effects[at]));
        EXPECT_FALSE(std::holds_alternative<SwitchEffect::LogWarning>(step.effects[at]));
    }
}

/// Polling and observers are begun and ended in turn, as the lifecycle says.
void checkLifecycle(const SwitchStep& step)
{
    const auto polls
        = [](Lifecycle lifecycle) { return lifecycle == Lifecycle::observingWithBrowserPolling; };
    EXPECT_EQ(count<SwitchEffect::StartBrowserPolling>(step.effects)
            - count<SwitchEffect::StopBrowserPolling>(step.effects),
        polls(step.after.lifecycle) - polls(step.before.lifecycle));
    EXPECT_LE(count<SwitchEffect::StartBrowserPolling>(step.effects), 1);
    EXPECT_LE(count<SwitchEffect::StopBrowserPolling>(step.effects), 1);
    const bool changesNothing = std::holds_alternative<SwitchEvent::InputSourceChanged>(step.event);
    if (changesNothing) {
        EXPECT_TRUE(step.effects.empty());
        EXPECT_EQ(step.after.lifecycle, step.before.lifecycle);
    }
    if (step.isOrderly) {
        EXPECT_EQ(count<SwitchEffect::InstallObservers>(step.effects)
                - count<SwitchEffect::RemoveObservers>(step.effects),
            (step.after.lifecycle != Lifecycle::stopped)
                - (step.before.lifecycle != Lifecycle::stopped));
    }
    const bool isLeft = changesNothing || (isOfTheDesktop(step.event) && step.effects.empty());
    if (polls(step.after.lifecycle) && !isLeft) {
        EXPECT_TRUE(step.config.enabled && step.config.domainRulesEnabled);
        EXPECT_EQ(step.after.frontmostBundleID, "browser");
    }
    if (step.after.lifecycle == Lifecycle::stopped && step.before.lifecycle != Lifecycle::stopped) {
        EXPECT_EQ(step.after.learning, std::nullopt);
        EXPECT_EQ(step.after.ignoreWindow, SwitchState::IgnoreWindow{});
    }
}

/// A window is opened by a successful selection only, for one second.
void checkWindow(const SwitchStep& step)
{
    EXPECT_EQ(step.after.ignoreWindow.inputSourceID.has_value(),
        step.after.ignoreWindow.deadline.has_value());
    const bool succeeded = !step.computer.selections.empty()
        && !step.computer.refusedSources.contains(step.computer.selections[0]);
    if (succeeded) {
        EXPECT_EQ(step.after.ignoreWindow,
            (SwitchState::IgnoreWindow{step.computer.selections[0], step.computer.now + 1.0}));
    } else if (step.after.ignoreWindow.inputSourceID) {
        EXPECT_EQ(step.after.ignoreWindow, step.before.ignoreWindow);
    } else if (step.before.ignoreWindow.inputSourceID) {
        const bool mayClose = !step.computer.selections.empty()
            || step.after.lifecycle == Lifecycle::stopped
            || std::holds_alternative<SwitchEvent::InputSourceChanged>(step.event)
            || isOfTheDesktop(step.event);
        EXPECT_TRUE(mayClose);
    }
}

/// A switch that is remembered is one of the place visited last.
void checkMemory(const SwitchStep& step)
{
    const auto& memory = step.after.override;
    EXPECT_EQ(
        memory.lastAutomaticContext.has_value(), memory.lastAutomaticInputSourceID.has_value());
    if (memory.lastAutomaticContext) {
        EXPECT_EQ(memory.lastAutomaticContext, memory.lastVisitedContext);
    }
}

/// Only a change of the source is learned from, once, and within all bounds.
void checkLearning(const SwitchStep& step)
{
    const auto window = static_cast<std::size_t>(storedValue(step.smartAfter.windowSize));
    for (const auto& stats : step.smartAfter.appStats)
        EXPECT_LE(stats.samples.size(), window);
    for (const auto& [bundleID, dates] : step.smartAfter.appActivations)
        EXPECT_LE(dates.size(), 500u);
    if (step.smartAfter == step.smartBefore)
        return;
    ASSERT_TRUE(step.before.learning);
    const auto app = step.before.learning->app.bundleID;
    EXPECT_TRUE(std::holds_alternative<SwitchEvent::InputSourceChanged>(step.event));
    EXPECT_TRUE(step.config.enabled && step.smartBefore.learningEnabled);
    EXPECT_NE(step.before.learning->lastObservedInputSourceID, step.computer.inputSourceID);
    EXPECT_EQ(step.smartAfter.appActivations.at(app).back(), step.computer.systemTime);
    auto expected = step.smartBefore;
    expected.recordActivation(app, step.computer.systemTime);
    EXPECT_EQ(step.smartAfter.appActivations, expected.appActivations);
    const auto stats
        = std::find_if(step.smartAfter.appStats.begin(), step.smartAfter.appStats.end(),
            [&](const auto& entry) { return entry.app.bundleID == app; });
    ASSERT_NE(stats, step.smartAfter.appStats.end());
    EXPECT_EQ(stats->samples.back().inputSourceID, step.computer.inputSourceID);
    EXPECT_EQ(stats->samples.back().recordedAt, step.computer.systemTime);
    EXPECT_EQ(stats->lastRecordedAt, step.computer.systemTime);
}

} // namespace

void expectProperties(const SwitchStep& step)
{
    checkSelections(step);
    checkOrder(step);
    checkLifecycle(step);
    checkWindow(step);
    checkMemory(step);
    checkLearning(step);
}

} // namespace brindlex
