#pragma once

#include "platform/linux/input/TapDemand.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <vector>

namespace brindlex {

/// Which button the applications get for which button of a hand, as X counts both.
///
/// A mouse for the left hand has them changed over (`xmodmap -e "pointer = 3 2 1"`). The server
/// does so behind the devices: what is taken from a device, and what is played, are the buttons of
/// the hand, while the user and all programs speak of those that the applications get.
class X11PointerMap {
public:
    /// Every button is itself.
    X11PointerMap() = default;

    /// `meanings` has for each button of the hand, from the first on, what it is to the
    /// applications; 0 is none. Buttons beyond them are themselves.
    explicit X11PointerMap(std::vector<std::uint8_t> meanings);

    /// What the applications get for the button; 0 for none.
    std::uint8_t meaningOf(std::uint8_t button) const;

    /// The buttons of the hand that are this one to the applications, the lowest first.
    std::vector<std::uint8_t> buttonsFor(std::uint8_t meaning) const;

    /// The demand with the buttons of the hand in place of what they mean.
    TapDemand ofHand(const TapDemand& demand) const;

    bool operator==(const X11PointerMap&) const = default;

private:
    std::vector<std::uint8_t> meanings_;
};

/// The map that is in force on the server; every button is itself when the server is gone.
X11PointerMap pointerMap(X11Connection& connection);

/// Whether the event says that the map has changed.
bool isPointerMapChange(const xcb_generic_event_t& event);

} // namespace brindlex
