#include "inputmethod/SwitchReducer.h"

#include "support/SwitchComputer.h"
#include "support/SwitchRecords.h"
#include "support/SwitchText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace brindlex {
namespace {

using Effects = std::vector<SwitchEffect::Any>;
using Lifecycle = SwitchState::Lifecycle;

/// A user, a computer and settings that all do anything at any time.
class Afternoon {
public:
    Afternoon(unsigned seed, bool isOrderly) : random_(seed), isOrderly_(isOrderly)
    {
        computer_.inputSourceID = "english";
        computer_.names = {{"english", "English"}};
        computer_.browsers = {"browser"};
        for (int number = 0; number < 25; ++number)
            smartConfig_.appActivations["other" + std::to_string(number)]
                = std::vector<Date>(below(20), computer_.systemTime);
    }

    /// Plays one step and checks everything that must hold of it.
    void step()
    {
        changeTheWorld();
        const auto event = anyEvent();
        const auto before = state_;
        const auto smartBefore = smartConfig_;
        const auto sourceBefore = computer_.inputSourceID;
        computer_.selections.clear();
        computer_.calls.clear();
        const auto effects = reduce(event, state_, smartConfig_, config_, computer_.environment());
        history_ = text(event) + " after\n" + text(before) + "gave\n" + text(state_);
        for (const auto& effect : effects)
            history_ += text(effect) + "\n";
        SCOPED_TRACE(history_);

        checkSelections(effects, sourceBefore);
        checkOrder(effects);
        checkLifecycle(event, before, effects);
        checkWindow(event, before);
        checkMemory();
        checkLearning(event, before, smartBefore);
        selectionsMade_ += computer_.selections.size();
        samplesMade_ += smartConfig_ != smartBefore;
    }

    std::size_t selectionsMade() const { return selectionsMade_; }
    std::size_t samplesMade() const { return samplesMade_; }

private:
    std::size_t below(unsigned bound) { return random_() % bound; }
    bool oneIn(unsigned count) { return below(count) == 0; }

    template <typename Value>
    Value oneOf(std::initializer_list<Value> values)
    {
        return values.begin()[below(static_cast<unsigned>(values.size()))];
    }

    std::string anySource() { return oneOf<std::string>({"english", "german", "french", ""}); }
    std::string anyApp() { return oneOf<std::string>({"editor", "mail", "browser", "tool"}); }
    std::optional<std::string> anyPage()
    {
        if (oneIn(4))
            return {};
        return oneOf<std::string>(
            {"example.com", "a.example.com", "b.example.com", "other.org", ""});
    }

    void changeTheWorld()
    {
        computer_.now = computer_.now + oneOf({0.0, 0.2, 0.5, 1.0, 3.0, -2.0});
        computer_.systemTime = computer_.systemTime + oneOf({0.0, 1.0, 3600.0, 86'400.0, -5000.0});
        if (oneIn(4))
            computer_.inputSourceID = anySource();
        if (oneIn(40))
            computer_.inputSourceID.reset();
        if (oneIn(10))
            computer_.refusedSources = {anySource()};
        if (oneIn(4))
            computer_.refusedSources.clear();
        computer_.page = anyPage();
        computer_.frontmostBundleID = anyApp();
        if (oneIn(10))
            changeTheSettings();
    }

    void changeTheSettings()
    {
        config_.enabled = !oneIn(5);
        config_.domainRulesEnabled = !oneIn(3);
        config_.showHUD = !oneIn(3);
        config_.rules.clear();
        for (auto left = below(4); left > 0; --left)
            config_.rules.push_back(appRule(anyApp(), anySource()));
        config_.domainRules.clear();
        for (auto left = below(3); left > 0; --left)
            config_.domainRules.push_back(
                websiteRule(oneOf<std::string>({"example.com", "a.example.com"}), anySource()));
        smartConfig_.enabled = !oneIn(3);
        smartConfig_.learningEnabled = !oneIn(4);
        smartConfig_.priority = allCases<SmartInputMethodPriority>()[below(3)];
        smartConfig_.thresholdRatio = allCases<SmartInputMethodThresholdRatio>()[below(3)];
        smartConfig_.windowSize = allCases<SmartInputMethodWindowSize>()[below(4)];
        smartConfig_.appLimit = allCases<SmartInputMethodAppLimit>()[below(5)];
        smartConfig_.normalizeStats();
    }

    /// An orderly shell hears of applications, pages and website rules only while it observes.
    SwitchEvent::Any anyEvent()
    {
        const bool isDeaf = isOrderly_ && state_.lifecycle == Lifecycle::stopped;
        switch (isDeaf ? 10 + below(3) : below(13)) {
        case 0:
        case 1:
        case 2:
            return SwitchEvent::AppActivated{oneIn(20) ? std::nullopt : std::optional(anyApp())};
        case 3:
        case 4:
        case 5:
            return SwitchEvent::BrowserContextTick{anyPage()};
        case 6:
        case 7:
        case 8:
            return SwitchEvent::InputSourceChanged{};
        case 9:
            return SwitchEvent::DomainRulesEnabledChanged{};
        case 10:
            return SwitchEvent::Start{};
        case 11:
            return SwitchEvent::ConfigEnabledChanged{};
        default:
            return SwitchEvent::Stop{};
        }
    }

    template <typename Effect>
    static std::ptrdiff_t count(const Effects& effects)
    {
        return std::count_if(effects.begin(), effects.end(),
            [](const auto& effect) { return std::holds_alternative<Effect>(effect); });
    }

    /// At most one selection, never of the source that is selected, and told of exactly once.
    void checkSelections(const Effects& effects, const std::optional<std::string>& sourceBefore)
    {
        const auto hud = count<SwitchEffect::FireHUD>(effects);
        const auto warnings = count<SwitchEffect::LogWarning>(effects);
        ASSERT_LE(computer_.selections.size(), 1u);
        if (computer_.selections.empty()) {
            EXPECT_EQ(hud + warnings, 0);
            return;
        }
        const auto& selected = computer_.selections[0];
        const bool failed = computer_.refusedSources.contains(selected);
        EXPECT_TRUE(config_.enabled);
        EXPECT_NE(selected, sourceBefore);
        EXPECT_EQ(warnings, failed ? 1 : 0);
        EXPECT_EQ(hud, !failed && config_.showHUD ? 1 : 0);
    }

    /// Effects on observers and polling come first, the overlay or the warning last.
    static void checkOrder(const Effects& effects)
    {
        for (std::size_t at = 0; at + 1 < effects.size(); ++at) {
            EXPECT_FALSE(std::holds_alternative<SwitchEffect::FireHUD>(effects[at]));
            EXPECT_FALSE(std::holds_alternative<SwitchEffect::LogWarning>(effects[at]));
        }
    }

    /// Polling and observers are begun and ended in turn, as the lifecycle says.
    void checkLifecycle(
        const SwitchEvent::Any& event, const SwitchState& before, const Effects& effects)
    {
        const auto polls = [](Lifecycle lifecycle) {
            return lifecycle == Lifecycle::observingWithBrowserPolling;
        };
        EXPECT_EQ(count<SwitchEffect::StartBrowserPolling>(effects)
                - count<SwitchEffect::StopBrowserPolling>(effects),
            polls(state_.lifecycle) - polls(before.lifecycle));
        EXPECT_LE(count<SwitchEffect::StartBrowserPolling>(effects), 1);
        EXPECT_LE(count<SwitchEffect::StopBrowserPolling>(effects), 1);
        const bool changesNothing = std::holds_alternative<SwitchEvent::InputSourceChanged>(event);
        if (changesNothing) {
            EXPECT_TRUE(effects.empty());
            EXPECT_EQ(state_.lifecycle, before.lifecycle);
        }
        if (isOrderly_) {
            EXPECT_EQ(count<SwitchEffect::InstallObservers>(effects)
                    - count<SwitchEffect::RemoveObservers>(effects),
                (state_.lifecycle != Lifecycle::stopped)
                    - (before.lifecycle != Lifecycle::stopped));
        }
        if (polls(state_.lifecycle) && !changesNothing) {
            EXPECT_TRUE(config_.enabled && config_.domainRulesEnabled);
            EXPECT_EQ(state_.frontmostBundleID, "browser");
        }
        if (state_.lifecycle == Lifecycle::stopped && before.lifecycle != Lifecycle::stopped) {
            EXPECT_EQ(state_.learning, std::nullopt);
            EXPECT_EQ(state_.ignoreWindow, SwitchState::IgnoreWindow{});
        }
    }

    /// A window is opened by a successful selection only, for one second.
    void checkWindow(const SwitchEvent::Any& event, const SwitchState& before)
    {
        EXPECT_EQ(state_.ignoreWindow.inputSourceID.has_value(),
            state_.ignoreWindow.deadline.has_value());
        const bool succeeded = !computer_.selections.empty()
            && !computer_.refusedSources.contains(computer_.selections[0]);
        if (succeeded) {
            EXPECT_EQ(state_.ignoreWindow,
                (SwitchState::IgnoreWindow{computer_.selections[0], computer_.now + 1.0}));
        } else if (state_.ignoreWindow.inputSourceID) {
            EXPECT_EQ(state_.ignoreWindow, before.ignoreWindow);
        } else if (before.ignoreWindow.inputSourceID) {
            const bool mayClose = !computer_.selections.empty()
                || state_.lifecycle == Lifecycle::stopped
                || std::holds_alternative<SwitchEvent::InputSourceChanged>(event);
            EXPECT_TRUE(mayClose);
        }
    }

    /// A switch that is remembered is one of the place visited last.
    void checkMemory()
    {
        const auto& memory = state_.override;
        EXPECT_EQ(
            memory.lastAutomaticContext.has_value(), memory.lastAutomaticInputSourceID.has_value());
        if (memory.lastAutomaticContext) {
            EXPECT_EQ(memory.lastAutomaticContext, memory.lastVisitedContext);
        }
    }

    /// Only a change of the source is learned from, once, and within all bounds.
    void checkLearning(const SwitchEvent::Any& event, const SwitchState& before,
        const SmartInputMethodConfig& smartBefore)
    {
        const auto window = static_cast<std::size_t>(storedValue(smartConfig_.windowSize));
        for (const auto& stats : smartConfig_.appStats)
            EXPECT_LE(stats.samples.size(), window);
        for (const auto& [bundleID, dates] : smartConfig_.appActivations)
            EXPECT_LE(dates.size(), 500u);
        if (smartConfig_ == smartBefore)
            return;
        ASSERT_TRUE(before.learning);
        const auto app = before.learning->app.bundleID;
        EXPECT_TRUE(std::holds_alternative<SwitchEvent::InputSourceChanged>(event));
        EXPECT_TRUE(config_.enabled && smartBefore.learningEnabled);
        EXPECT_NE(before.learning->lastObservedInputSourceID, computer_.inputSourceID);
        EXPECT_EQ(smartConfig_.appActivations.at(app).back(), computer_.systemTime);
        auto expected = smartBefore;
        expected.recordActivation(app, computer_.systemTime);
        EXPECT_EQ(smartConfig_.appActivations, expected.appActivations);
        const auto stats = std::find_if(smartConfig_.appStats.begin(), smartConfig_.appStats.end(),
            [&](const auto& entry) { return entry.app.bundleID == app; });
        ASSERT_NE(stats, smartConfig_.appStats.end());
        EXPECT_EQ(stats->samples.back().inputSourceID, computer_.inputSourceID);
        EXPECT_EQ(stats->samples.back().recordedAt, computer_.systemTime);
        EXPECT_EQ(stats->lastRecordedAt, computer_.systemTime);
    }

    std::mt19937 random_;
    bool isOrderly_;
    SwitchComputer computer_;
    InputMethodConfig config_;
    SmartInputMethodConfig smartConfig_;
    SwitchState state_;
    std::string history_;
    std::size_t selectionsMade_ = 0;
    std::size_t samplesMade_ = 0;
};

class SwitchReducerProperty : public testing::TestWithParam<unsigned> {
protected:
    static void play(bool isOrderly)
    {
        const auto seed = GetParam();
        Afternoon afternoon(seed, isOrderly);
        for (int step = 0; step < 3000 && !HasFailure(); ++step) {
            SCOPED_TRACE("seed " + std::to_string(seed) + " step " + std::to_string(step));
            afternoon.step();
        }
        EXPECT_GT(afternoon.selectionsMade(), 50u);
        EXPECT_GT(afternoon.samplesMade(), 50u);
    }
};

TEST_P(SwitchReducerProperty, holdsForAnyEvents) { play(false); }

TEST_P(SwitchReducerProperty, holdsForTheEventsOfAnOrderlyShell) { play(true); }

INSTANTIATE_TEST_SUITE_P(Seeds, SwitchReducerProperty, testing::Range(1u, 5u));

} // namespace
} // namespace brindlex
