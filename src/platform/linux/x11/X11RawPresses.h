#pragma once

#include "foundation/Subscription.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <functional>

namespace brindlex {

/// Notices that a hand presses something, whatever window gets it. The wheel is no press.
///
/// Nothing is taken from anybody, and what it was is not read. The server notifies only while it is
/// listened to, so that typing costs nothing. A server without XInput 2.2 has no presses to notice.
/// One connection has one listener of each kind at the most. Main thread only.
class X11RawPresses {
public:
    enum class Kind { buttonsAndTouches, keysToo };

    /// `pressed` is called with each press, from the loop.
    X11RawPresses(X11Connection& connection, Kind kind, std::function<void()> pressed);
    ~X11RawPresses() { stop(); }
    X11RawPresses(const X11RawPresses&) = delete;
    X11RawPresses& operator=(const X11RawPresses&) = delete;

    void listen();
    /// May be called by who is notified.
    void stop();
    bool isListening() const { return isListening_; }

private:
    bool isPress(const xcb_ge_generic_event_t& event) const;
    void select(std::uint32_t kinds);
    void receive(const xcb_generic_event_t& event);

    X11Connection& connection_;
    const Kind kind_;
    const std::function<void()> pressed_;
    std::uint8_t extension_ = 0;
    std::uint16_t device_ = 0;
    bool isListening_ = false;
    Subscription events_;
};

} // namespace brindlex
