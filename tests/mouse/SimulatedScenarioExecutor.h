#pragma once

#include "mouse/MouseSession.h"
#include "mouse/Scenario.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Plays a scenario in memory, with time of its own and a screen of 60 frames per second.
class SimulatedScenarioExecutor : public ScenarioExecutor {
public:
    void setUp(const Words& words) override;
    std::vector<std::string> run(Seconds at, const Words& words) override;

private:
    void start();
    void advanceTo(Seconds at);
    /// What a device does; nothing when the words are about something else.
    std::optional<EventVerdict> play(SimulatedMouse& mouse, const Words& words);
    void arrange(const Words& words);
    std::vector<std::string> takeSeen();

    MouseConfig initialConfig_;
    std::vector<Words> initialArrangement_;
    /// Absent until something happens.
    std::unique_ptr<MouseSession> session_;
    std::unique_ptr<SimulatedMouse> secondMouse_;
    Seconds now_ = 0;
    long frames_ = 0;
};

} // namespace brindlex
