#pragma once

#include "mouse/MouseScenario.h"
#include "mouse/MouseSession.h"

#include <string>
#include <vector>

namespace brindlex {

/// What scenarios do with the mouse subsystem apart from its input: time, settings, and the
/// computer around it. The screen has 60 frames per second.
class MouseScenarioStage {
public:
    explicit MouseScenarioStage(MouseSession& subsystem) : subsystem_(subsystem) { }

    /// Arranges the computer and starts the managers, as the program does.
    void begin(const MouseVerbs::Preparation& preparation);

    /// Lets time pass until so long after the start.
    void advanceTo(Seconds at);

    void carryOut(const MouseStageChange::Any& change);

    /// "open ..." and "launch ...": what was started since the last time.
    std::vector<std::string> takeStarted();

private:
    void set(ScenarioWords setting);
    void setPermission(bool isGiven);
    void placeElement(const std::string& role);
    void bringToFront(const std::string& application);
    void showCursor(const std::string& name);

    MouseSession& subsystem_;
    Seconds now_ = 0;
    long frames_ = 0;
};

} // namespace brindlex
