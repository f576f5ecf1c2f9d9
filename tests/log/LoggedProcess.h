#pragma once

#include "app/AppLifecycleCoordinator.h"
#include "support/basics/RecordedLog.h"
#include "support/switching/SimulatedDesktop.h"

namespace brindlex {

/// A process of the program, alone on a simulated desktop, with its log recorded.
struct LoggedProcess {
    SimulatedSessionServices services;
    SimulatedDesktop desktop{services};
    RecordedLog log;
    SharedInstances shared{desktop.platform};
    AppLifecycleCoordinator lifecycle{desktop.platform, shared};
};

/// Drags of the left button to the right, and nothing else.
inline MouseConfig leftGesture()
{
    MouseConfig config;
    config.gesture.bindings.push_back(
        {{}, MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::forward});
    return config;
}

} // namespace brindlex
