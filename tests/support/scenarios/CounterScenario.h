#pragma once

#include "support/scenarios/ScenarioExecutor.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The smallest subsystem with scenarios: a counter that rings at its limit.
struct CounterVerbs {
    struct Preparation {
        std::optional<int> limit{};
    };
    struct Step {
        int added = 0;
    };

    static constexpr std::array<std::string_view, 2> players{"memory", "desktop"};

    static void prepare(Preparation& preparation, ScenarioWords& words)
    {
        if (words.take("limit"))
            preparation.limit = words.wholeNumber();
        else
            words.refuseNext();
    }

    static std::optional<std::string> complete(Preparation& preparation)
    {
        return preparation.limit ? std::nullopt : std::optional<std::string>("has no limit");
    }

    static Step step(ScenarioWords& words)
    {
        if (words.take("wait"))
            return {};
        if (words.take("add"))
            return {words.wholeNumber()};
        words.refuseNext();
        return {};
    }
};

class CounterExecutor : public ScenarioExecutor<CounterVerbs> {
public:
    void begin(const Scenario<CounterVerbs>& scenario) override
    {
        limit_ = *scenario.preparation.limit;
    }

    std::vector<std::string> perform(const Scenario<CounterVerbs>::Step& step) override
    {
        if (step.what.added == 0)
            return {};
        count_ += step.what.added;
        std::vector<std::string> effects{"count " + std::to_string(count_)};
        if (count_ >= limit_)
            effects.push_back("ring");
        return effects;
    }

    std::string report() const override
    {
        return "the counter stands at " + std::to_string(count_);
    }

private:
    int limit_ = 0;
    int count_ = 0;
};

} // namespace brindlex
