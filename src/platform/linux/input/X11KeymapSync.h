#pragma once

#include "platform/linux/input/X11InputDevices.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Carries to taken keyboards what the user makes of the layout meanwhile: the server passes them
/// over, and each would bring its old layout back with it.
class X11KeymapSync {
public:
    /// `display` is the name of the connection's server; see `copyKeyboardMap`.
    X11KeymapSync(X11Connection& connection, std::string display);

    /// Whether changes are looked out for, from now on.
    void listen(bool isListening);
    bool isListening() const { return isListening_; }

    /// Takes note of an event that reports a change.
    void receive(const xcb_generic_event_t& event);

    /// Gives the keyboards the map of the one on which is played, if it has changed; a few
    /// milliseconds then.
    void bringUpToDate(X11MasterDevices masters, const std::vector<X11InputDevice>& keyboards);

private:
    X11Connection& connection_;
    std::string display_;
    /// Absent without the extension for keyboards.
    std::optional<std::uint8_t> firstEvent_;
    bool isListening_ = false;
    bool hasChanged_ = false;
};

} // namespace brindlex
