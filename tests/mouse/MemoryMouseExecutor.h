#pragma once

#include "mouse/MouseScenario.h"
#include "mouse/MouseScenarioStage.h"
#include "mouse/MouseSession.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Plays a scenario in memory, with time of its own.
class MemoryMouseExecutor : public MouseScenarioExecutor {
public:
    void begin(const MouseScenario& scenario) override;
    std::vector<std::string> perform(const MouseScenario::Step& step) override;

private:
    struct Session : MouseSession {
        using MouseSession::MouseSession;

        SimulatedMouse secondMouse{input};
        MouseScenarioStage stage{*this};
    };

    /// What a device does; nothing when the step is about something else.
    std::optional<EventVerdict> carryOut(const MouseScenarioStep::Any& step);
    EventVerdict play(const MouseScenarioStep::Input& input);
    std::vector<std::string> takeSeen();

    /// Absent until a scenario begins.
    std::unique_ptr<Session> session_;
};

} // namespace brindlex
