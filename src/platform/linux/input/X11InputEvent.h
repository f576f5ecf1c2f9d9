#pragma once

#include "foundation/Cases.h"
#include "foundation/Geometry.h"
#include "platform/PressLedger.h"

#include <cstdint>
#include <optional>
#include <vector>
#include <xcb/xcb.h>

namespace brindlex {

/// What the X server reports of the devices.
struct X11InputEvent {
    /// A button of a taken device, those of the wheel among them. Where the cursor was and which
    /// modifiers were held, as flags of an event, holds for the press with which a device is taken;
    /// a device that is taken already knows of neither.
    struct Button {
        std::uint16_t device = 0;
        std::uint8_t button = 0;
        bool isPress = false;
        Point location{};
        std::uint64_t flags = 0;

        bool operator==(const Button&) const = default;
    };
    /// A key of a taken device. Which modifiers of the same keyboard were held, as flags of an
    /// event, holds for the press with which a device is taken.
    struct Key {
        std::uint16_t device = 0;
        std::uint8_t keycode = 0;
        bool isPress = false;
        bool isRepeat = false;
        std::uint64_t flags = 0;

        bool operator==(const Key&) const = default;
    };
    /// How far a taken mouse has moved, in pixels and parts of one, already accelerated.
    struct Motion {
        std::uint16_t device = 0;
        double x = 0;
        double y = 0;

        bool operator==(const Motion&) const = default;
    };
    /// Where a taken device that reports places now points.
    struct Place {
        std::uint16_t device = 0;
        Point location{};

        bool operator==(const Place&) const = default;
    };
    /// A button or key went up on a device that is not taken by this connection.
    struct FreeRelease {
        std::uint16_t device = 0;
        PressLedger::Kind kind{};
        std::uint8_t code = 0;

        bool operator==(const FreeRelease&) const = default;
    };
    /// Devices have come or gone.
    struct DevicesChanged {
        std::vector<std::uint16_t> gone{};

        bool operator==(const DevicesChanged&) const = default;
    };
    using Any = Cases<Button, Key, Motion, Place, FreeRelease, DevicesChanged>;
};

/// Reads an event of the input extension, whose number is `opcode`; nothing for all others.
std::optional<X11InputEvent::Any> readInputEvent(
    const xcb_generic_event_t& event, std::uint8_t opcode);

} // namespace brindlex
