#pragma once

#include "platform/HeldButtons.h"
#include "platform/simulated/SimulatedInput.h"

#include <set>

namespace brindlex {

/// A mouse of a simulated session. All mice move the one cursor.
class SimulatedMouse {
public:
    explicit SimulatedMouse(SimulatedInput& input) : input_(input), device_(input.addDevice()) { }

    EventVerdict press(std::int64_t button);
    EventVerdict release(std::int64_t button);

    /// A drag with the lowest of the buttons that this mouse holds, if it holds any.
    EventVerdict moveTo(Point point);

    /// Turns the wheel by lines: positive is up, and to the left.
    EventVerdict scroll(std::int64_t vertical, std::int64_t horizontal = 0);

    /// Scrolls by pixels, as a trackpad does.
    EventVerdict scrollContinuously(std::int64_t vertical, std::int64_t horizontal = 0);

    const std::set<std::int64_t>& heldButtons() const { return held_.numbers(); }

private:
    EventVerdict send(EventType type, EventFields fields);

    SimulatedInput& input_;
    PressLedger::DeviceIdentifier device_;
    HeldButtons held_;
};

} // namespace brindlex
