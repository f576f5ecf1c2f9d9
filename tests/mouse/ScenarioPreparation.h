#pragma once

#include "mouse/ScenarioStage.h"
#include "mouse/ScenarioWords.h"

#include <vector>

namespace brindlex {

/// What a scenario sets and arranges before anything happens.
class ScenarioPreparation {
public:
    void add(const ScenarioExecutor::Words& words)
    {
        if (!scenarioWords::change(config_, words))
            arrangement_.push_back(words);
    }

    /// What the session has to begin with.
    const MouseConfig& config() const { return config_; }

    /// Arranges the rest and starts what the session has on the stage.
    void begin(ScenarioStage& stage) const
    {
        for (const auto& words : arrangement_)
            stage.carryOut(words);
        stage.start();
    }

private:
    MouseConfig config_;
    std::vector<ScenarioExecutor::Words> arrangement_;
};

} // namespace brindlex
