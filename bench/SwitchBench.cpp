#include "foundation/Uuid.h"
#include "inputmethod/SwitchReducer.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

/// What one activation costs until its switch is decided and selected, and what the ranking of the
/// learned applications costs as they and their dates become more.

namespace brindlex {
namespace {

constexpr Date now{800'000'000};
const std::string english = "com.apple.keylayout.US";
const std::string german = "com.apple.keylayout.German";

std::string application(std::int64_t number)
{
    return "com.example.Application" + std::to_string(number);
}

/// Rules for applications that nobody activates, then one for the last learned application.
InputMethodConfig configWithRules(std::int64_t rules, const std::string& lastApplication)
{
    InputMethodConfig config;
    for (std::int64_t rule = 0; rule + 1 < rules; ++rule)
        config.rules.push_back(
            {Uuid::random(), {"com.example.Ruled" + std::to_string(rule), ""}, german});
    config.rules.push_back({Uuid::random(), {lastApplication, ""}, german});
    return config;
}

/// Applications that all agree on one source, each with so many dates; every third of the dates is
/// out of order, as after a clock that was set back.
SmartInputMethodConfig learnedConfig(std::int64_t applications, std::int64_t dates,
    SmartInputMethodWindowSize window = SmartInputMethodWindowSize::ten)
{
    SmartInputMethodConfig config;
    config.enabled = true;
    config.windowSize = window;
    for (std::int64_t number = 0; number < applications; ++number) {
        SmartInputMethodAppStats stats{Uuid::random(), {application(number), "Application"}};
        for (int sample = 0; sample < storedValue(window); ++sample)
            stats.samples.push_back({Uuid::random(), german, now - 60});
        config.appStats.push_back(stats);
        auto& activations = config.appActivations[application(number)];
        for (std::int64_t date = 0; date < dates; ++date)
            activations.push_back(now - 1000.0 * static_cast<double>(dates - date % 3 * 5 - date));
    }
    config.normalizeStats();
    return config;
}

SwitchEnvironment environment(const std::string& frontmost)
{
    return {
        .now = [] { return now; },
        .currentInputSourceID = [] { return english; },
        .currentInputSourceLocalizedName = [] { return "German"; },
        .selectInputSource = [](const std::string&) { return true; },
        .isSupportedBrowser = [](const std::optional<std::string>&) { return false; },
        .currentFrontmostBundleID = [frontmost] { return frontmost; },
        .appIdentifier =
            [](const std::optional<std::string>& bundleID) {
                return AppIdentifier{bundleID.value_or(""), "Application"};
            },
        .currentBrowserHost = [](const std::optional<std::string>&) { return std::nullopt; },
        .systemTime = [] { return now; },
        .whyUndone = [] { return std::string(); },
        .noteSwitch = [](const InputMethodSwitchDecision&) {},
        .noteAgreement = [](const InputMethodSwitchDecision&) {},
    };
}

void reduceActivations(benchmark::State& state, const InputMethodConfig& config,
    SmartInputMethodConfig smartConfig, const std::string& bundleID, std::size_t expectedEffects)
{
    const auto computer = environment(bundleID);
    const SwitchEvent::Any event = SwitchEvent::AppActivated{bundleID};
    for (auto _ : state) {
        SwitchState switching;
        const auto effects = reduce(event, switching, smartConfig, config, computer);
        if (effects.size() != expectedEffects)
            state.SkipWithError("The activation was not decided as intended");
        benchmark::DoNotOptimize(effects);
    }
}

/// 100 rules and 200 learned applications; the last rule decides.
void activationDecidedByARule(benchmark::State& state)
{
    const auto bundleID = application(199);
    reduceActivations(
        state, configWithRules(100, bundleID), learnedConfig(200, state.range(0)), bundleID, 1);
}
BENCHMARK(activationDecidedByARule)->Arg(20)->Arg(500);

/// 100 rules that do not speak and learned applications, the last of which is activated; all may
/// have a learned rule in force.
void activationDecidedByLearningWithoutLimit(benchmark::State& state)
{
    auto smartConfig = learnedConfig(state.range(0), 20);
    smartConfig.appLimit = SmartInputMethodAppLimit::unlimited;
    reduceActivations(state, configWithRules(100, "com.example.Other"), smartConfig,
        application(state.range(0) - 1), 1);
}
BENCHMARK(activationDecidedByLearningWithoutLimit)->Arg(200);

/// So many learned applications with so many dates each.
void growing(benchmark::internal::Benchmark* benchmark)
{
    for (const int dates : {20, 50, 100, 200, 500})
        benchmark->Args({200, dates});
    benchmark->Args({1000, 500});
}

/// As before, with the first 20 by score; the activated application leads.
void activationOfTheTopLearnedApplication(benchmark::State& state)
{
    auto smartConfig = learnedConfig(state.range(0), state.range(1));
    const auto bundleID = application(state.range(0) - 1);
    smartConfig.appActivations[bundleID].push_back(now);
    state.SetComplexityN(state.range(0) * state.range(1));
    reduceActivations(state, configWithRules(100, "com.example.Other"), smartConfig, bundleID, 1);
}
BENCHMARK(activationOfTheTopLearnedApplication)
    ->Apply(growing)
    ->Args({10'000, 500})
    ->Complexity(benchmark::oN);

/// As before; the activated application shares its score with all others and comes 20th by name, so
/// that every one of them has to be looked at.
void activationOfTheLastAdmittedApplication(benchmark::State& state)
{
    const auto smartConfig = learnedConfig(200, state.range(0), SmartInputMethodWindowSize::ten);
    const auto bundleID = *smartConfig.topAppBundleIDs(now)->rbegin();
    reduceActivations(state, configWithRules(100, "com.example.Other"), smartConfig, bundleID, 1);
}
BENCHMARK(activationOfTheLastAdmittedApplication)->Arg(5)->Arg(20)->Arg(500);

/// The worst case: all others have as many dates, but one is too old, so that no application can be
/// passed over and none stands before the activated one.
void activationThatCountsAllDates(benchmark::State& state)
{
    auto smartConfig = learnedConfig(state.range(0), state.range(1));
    const auto bundleID = application(0);
    for (auto& [other, dates] : smartConfig.appActivations)
        if (other != bundleID)
            dates.front() = {};
    smartConfig.appActivations[bundleID].pop_back();
    state.SetComplexityN(state.range(0) * state.range(1));
    reduceActivations(state, configWithRules(100, "com.example.Other"), smartConfig, bundleID, 1);
}
BENCHMARK(activationThatCountsAllDates)
    ->Apply(growing)
    ->Args({2000, 500})
    ->Complexity(benchmark::oN);

/// As before; the activated application has the lowest score, so nothing is selected.
void activationOfAnApplicationBelowTheLimit(benchmark::State& state)
{
    auto smartConfig = learnedConfig(200, state.range(0), SmartInputMethodWindowSize::ten);
    const auto bundleID = application(199);
    smartConfig.appActivations.erase(bundleID);
    smartConfig.appActivations[bundleID] = {now};
    smartConfig.recordSample(german, {"zzz", ""}, now);
    reduceActivations(state, configWithRules(100, "com.example.Other"), smartConfig, bundleID, 0);
}
BENCHMARK(activationOfAnApplicationBelowTheLimit)->Arg(5)->Arg(20)->Arg(500);

/// A browser's page among 100 website rules.
void tickOfABrowser(benchmark::State& state)
{
    InputMethodConfig config;
    config.domainRulesEnabled = true;
    for (int rule = 0; rule < 100; ++rule)
        config.domainRules.push_back(
            {Uuid::random(), "site" + std::to_string(rule) + ".example.com", german});
    SmartInputMethodConfig smartConfig;
    auto computer = environment("com.example.Browser");
    computer.isSupportedBrowser = [](const std::optional<std::string>&) { return true; };
    const SwitchEvent::Any event = SwitchEvent::BrowserContextTick{"mail.site99.example.com"};
    for (auto _ : state) {
        SwitchState switching;
        const auto effects = reduce(event, switching, smartConfig, config, computer);
        if (effects.size() != 1)
            state.SkipWithError("The page was not decided as intended");
        benchmark::DoNotOptimize(effects);
    }
}
BENCHMARK(tickOfABrowser);

/// The ranking of so many applications with so many dates each.
void topAppBundleIDs(benchmark::State& state)
{
    auto config = learnedConfig(state.range(0), state.range(1));
    config.appLimit = SmartInputMethodAppLimit::top50;
    for (auto _ : state) {
        const auto top = config.topAppBundleIDs(now);
        if (!top || top->size() != 50)
            state.SkipWithError("The ranking is not complete");
        benchmark::DoNotOptimize(top);
    }
    state.SetComplexityN(state.range(0) * state.range(1));
}
BENCHMARK(topAppBundleIDs)
    ->Unit(benchmark::kMillisecond)
    ->Args({100, 500})
    ->Args({1000, 500})
    ->Args({2000, 500})
    ->Args({5000, 500})
    ->Args({10'000, 500})
    ->Complexity(benchmark::oN);
BENCHMARK(topAppBundleIDs)
    ->Name("topAppBundleIDsByDates")
    ->Unit(benchmark::kMillisecond)
    ->Args({10'000, 1})
    ->Args({10'000, 20})
    ->Args({10'000, 100})
    ->Args({10'000, 500});

} // namespace
} // namespace brindlex
