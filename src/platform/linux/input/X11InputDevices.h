#pragma once

#include "foundation/Result.h"
#include "platform/EventPermissions.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brindlex {

/// A mouse or keyboard that is plugged in, as the X server knows it.
struct X11InputDevice {
    enum class Kind { mouse, keyboard };

    std::uint16_t id = 0;
    Kind kind{};
    std::string name{};
    /// Whether it reports places, as the mouse of a virtual machine does, and not distances.
    bool isAbsolute = false;

    bool operator==(const X11InputDevice&) const = default;
};

/// The pointer that moves for this connection and the keyboard that goes with it.
struct X11MasterDevices {
    std::uint16_t pointer = 0;
    std::uint16_t keyboard = 0;

    bool operator==(const X11MasterDevices&) const = default;
};

/// Why the input cannot be tapped: in words for the log, and for the user.
struct X11TappingProblem {
    std::string words{};
    PermissionObstacle obstacle{};
};

/// The problem is that the server has no second version of its input extension that is new enough,
/// that it cannot put in events (XTEST), or that it is a guest of a Wayland session, whose input
/// never belongs to it.
Result<X11MasterDevices, X11TappingProblem> tappableMasters(X11Connection& connection);

/// The devices of the masters that can be taken from the applications and played back to them.
///
/// Touchpads, tablets and touchscreens are left out: what they send by the pixel cannot be played
/// back without loss.
std::vector<X11InputDevice> tappableDevices(X11Connection& connection, X11MasterDevices masters);

/// The keyboard on which XTEST plays for the masters; 0 when there is none.
std::uint16_t playingKeyboard(X11Connection& connection, X11MasterDevices masters);

/// The pointer on which XTEST plays for the masters; 0 when there is none.
std::uint16_t playingPointer(X11Connection& connection, X11MasterDevices masters);

/// The keys that are down on any keyboard that is plugged in, whoever holds it now.
std::vector<std::uint8_t> keysHeldByHand(
    X11Connection& connection, const std::vector<X11InputDevice>& devices);

} // namespace brindlex
