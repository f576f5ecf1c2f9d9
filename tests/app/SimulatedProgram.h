#pragma once

#include "app/AppLifecycleCoordinator.h"
#include "app/ProgramIdentity.h"
#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"

#include <memory>
#include <utility>

namespace brindlex {

/// A process of the program on a simulated computer. One journal has what it asks of the computer
/// and what it logs.
struct SimulatedProgram {
    /// In a session of its own, or in one with others.
    explicit SimulatedProgram(std::shared_ptr<SimulatedSessionServices> services
        = std::make_shared<SimulatedSessionServices>())
        : computer({.services = std::move(services),
            .bundleID = programIdentity::bundleIdentifier,
            .journal = &journal})
    {
        computer.userFolders = SimulatedUserFolders(home.path());
    }

    TemporaryFolder home;
    SimulatedJournal journal;
    RecordedLog log{&journal};
    SimulatedComputer computer;
    SharedInstances shared{computer.platform()};
    AppLifecycleCoordinator lifecycle{computer.platform(), shared};
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
