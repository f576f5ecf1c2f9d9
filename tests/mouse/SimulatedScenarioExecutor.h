#pragma once

#include "mouse/MouseSession.h"
#include "mouse/Scenario.h"
#include "mouse/ScenarioPreparation.h"
#include "mouse/ScenarioStage.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Plays a scenario in memory, with time of its own.
class SimulatedScenarioExecutor : public ScenarioExecutor {
public:
    void setUp(const Words& words) override { preparation_.add(words); }
    std::vector<std::string> run(Seconds at, const Words& words) override;

private:
    struct Session : MouseSession {
        using MouseSession::MouseSession;

        SimulatedMouse secondMouse{input};
        ScenarioStage stage{*this};
    };

    void start();
    /// What a device does; nothing when the words are about something else.
    std::optional<EventVerdict> play(SimulatedMouse& mouse, const Words& words);
    std::vector<std::string> takeSeen();

    ScenarioPreparation preparation_;
    /// Absent until something happens.
    std::unique_ptr<Session> session_;
};

} // namespace brindlex
