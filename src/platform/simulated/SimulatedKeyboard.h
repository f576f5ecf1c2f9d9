#pragma once

#include "platform/simulated/SimulatedInput.h"

#include <set>

namespace brindlex {

/// A keyboard of a simulated session, by virtual key codes.
class SimulatedKeyboard {
public:
    explicit SimulatedKeyboard(SimulatedInput& input)
        : input_(input), device_(input.addDevice()) { }

    EventVerdict press(std::int64_t keyCode);
    EventVerdict release(std::int64_t keyCode);

    /// Holds exactly these modifiers, as flags of an event, from now on.
    void holdModifiers(std::uint64_t flags);

    const std::set<std::int64_t>& heldKeys() const { return heldKeys_; }

private:
    EventVerdict send(EventType type, std::int64_t keyCode);

    SimulatedInput& input_;
    PressLedger::DeviceIdentifier device_;
    std::set<std::int64_t> heldKeys_;
};

} // namespace brindlex
