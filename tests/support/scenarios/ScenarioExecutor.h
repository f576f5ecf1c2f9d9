#pragma once

#include "support/scenarios/Scenario.h"

#include <string>
#include <vector>

namespace brindlex {

/// Carries out the steps of scenarios, in memory or on the real thing.
template <ScenarioVerbs Verbs>
class ScenarioExecutor {
public:
    virtual ~ScenarioExecutor() = default;

    /// Arranges what the preparation says. Called once, before all steps.
    virtual void begin(const Scenario<Verbs>& scenario) = 0;

    /// Lets time pass up to the step and carries it out. Returns the effects since the step before,
    /// in order.
    virtual std::vector<std::string> perform(const typename Scenario<Verbs>::Step& step) = 0;

    /// What a failure should print besides the difference.
    virtual std::string report() const { return {}; }
};

/// The effects as they are written right of an arrow.
inline std::string scenarioEffects(const std::vector<std::string>& effects)
{
    std::string text;
    for (const auto& effect : effects)
        text += (text.empty() ? "" : ", ") + effect;
    return text.empty() ? "nothing" : text;
}

/// Plays a scenario and returns its text with the effects that there really were, so that any
/// difference from the text that was written is one of behaviour.
template <ScenarioVerbs Verbs>
std::string play(const Scenario<Verbs>& scenario, ScenarioExecutor<Verbs>& executor)
{
    auto played = scenario.file;
    auto step = scenario.steps.begin();
    executor.begin(scenario);
    for (auto& line : played.lines)
        if (const auto written = std::get_if<ScenarioLine::Step>(&line.content))
            written->effects = scenarioEffects(executor.perform(*step++));
    return played.text();
}

} // namespace brindlex
