#pragma once

#include "mouse/MouseSession.h"
#include "mouse/Scenario.h"

#include <string>
#include <vector>

namespace brindlex {

/// What scenarios do with the mouse subsystem apart from its input: time, settings, and the
/// computer around it. The screen has 60 frames per second.
class ScenarioStage {
public:
    explicit ScenarioStage(MouseSession& subsystem) : subsystem_(subsystem) { }

    /// Starts the managers, as the program does.
    void start();

    /// Lets time pass until so long after the start.
    void advanceTo(Seconds at);

    /// Carries out a line such as "set gestures off", "permission lost" or "wait". A line that is
    /// none of these is a fatal error.
    void carryOut(const ScenarioExecutor::Words& words);

    /// "open ..." and "launch ...": what was started since the last time.
    std::vector<std::string> takeStarted();

private:
    void bringToFront(const std::string& application);
    void showCursor(const std::string& name);

    MouseSession& subsystem_;
    Seconds now_ = 0;
    long frames_ = 0;
};

} // namespace brindlex
