#pragma once

#include "mouse/MouseSubsystem.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedMouse.h"

#include <utility>

namespace brindlex {

/// The input of a simulated session, and the devices that make it.
struct SimulatedDevices {
    explicit SimulatedDevices(SimulatedInput::TapPlace place) : input(place) { }

    SimulatedInput input;
    SimulatedMouse mouse{input};
    SimulatedKeyboard keyboard{input};
};

/// A simulated session with the mouse subsystem in it.
struct MouseSession : SimulatedDevices, MouseSubsystem {
    explicit MouseSession(MouseConfig initial = {},
        SimulatedInput::TapPlace place = SimulatedInput::TapPlace::session)
        : SimulatedDevices(place), MouseSubsystem(input, input, std::move(initial))
    {
    }
};

} // namespace brindlex
