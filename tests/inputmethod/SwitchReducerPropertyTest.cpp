#include "inputmethod/SwitchReducer.h"

#include "inputmethod/SwitchReducerProperties.h"
#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>

namespace brindlex {
namespace {

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

        expectProperties({event, before, smartBefore, sourceBefore, effects, state_, smartConfig_,
            config_, computer_, isOrderly_});
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
        switch (isDeaf ? 13 + below(3) : below(16)) {
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
            return SwitchEvent::PlaceChangedInputSource{};
        case 11:
            return SwitchEvent::SelectionUndone{};
        case 12:
            return SwitchEvent::EnabledSourcesChanged{};
        case 13:
            return SwitchEvent::Start{};
        case 14:
            return SwitchEvent::ConfigEnabledChanged{};
        default:
            return SwitchEvent::Stop{};
        }
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
