#pragma once

#include "foundation/Date.h"
#include "foundation/Result.h"
#include "support/scenarios/ScenarioFile.h"
#include "support/scenarios/ScenarioWords.h"

#include <algorithm>
#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What a subsystem supplies to have scenarios: the meaning of their words.
///
/// `players` are the names of those that play its files. `prepare` adds a line to the preparation,
/// and `complete` returns what is missing once all lines are read. Words that do not fit are
/// refused through `ScenarioWords`.
template <typename Verbs>
concept ScenarioVerbs = requires(typename Verbs::Preparation& preparation, ScenarioWords& words)
{
    Verbs::players.begin();
    Verbs::prepare(preparation, words);
    {
        Verbs::complete(preparation)
        } -> std::same_as<std::optional<std::string>>;
    {
        Verbs::step(words)
        } -> std::same_as<typename Verbs::Step>;
};

/// A scenario file and what its lines mean.
template <ScenarioVerbs Verbs>
struct Scenario {
    struct Step {
        /// Since the start of the scenario.
        Seconds time = 0;
        typename Verbs::Step what{};
    };

    ScenarioFile file{};
    typename Verbs::Preparation preparation{};
    /// One for each step of the file.
    std::vector<Step> steps{};

    /// Adds the meaning of a line; returns what is wrong with it.
    std::optional<std::string> add(const ScenarioLine::Any& content)
    {
        ScenarioWords words;
        match(
            content, [](const ScenarioLine::Comment&) {},
            [&](const ScenarioLine::Exclusion& exclusion) {
                if (std::ranges::count(Verbs::players, exclusion.player) == 0)
                    words.refuse("no player is named \"" + exclusion.player + "\"");
            },
            [&](const ScenarioLine::Preparation& line) {
                words = ScenarioWords(line.words);
                Verbs::prepare(preparation, words);
            },
            [&](const ScenarioLine::Step& line) {
                words = ScenarioWords(line.words);
                steps.push_back({line.milliseconds / 1000.0, Verbs::step(words)});
            });
        return words.problem();
    }
};

/// The scenario in a text, or a problem such as `a.txt:4: "sing" is unknown`.
template <ScenarioVerbs Verbs>
Result<Scenario<Verbs>, std::string> parseScenario(std::string name, std::string_view text)
{
    const auto file = parseScenarioFile(std::move(name), text);
    if (!file)
        return fail(file.error());
    Scenario<Verbs> scenario{*file, {}, {}};
    for (const auto& line : file->lines)
        if (const auto problem = scenario.add(line.content))
            return fail(scenarioProblem(file->name, line.number, *problem));
    if (const auto missing = Verbs::complete(scenario.preparation))
        return fail(file->name + ": " + *missing);
    return scenario;
}

} // namespace brindlex
