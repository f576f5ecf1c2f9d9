#pragma once

#include "foundation/Subscription.h"
#include "platform/linux/x11/X11Connection.h"

#include <functional>

namespace brindlex {

/// Notices that a hand presses a key, a button or a touchscreen, whatever window gets it.
///
/// Nothing is taken from anybody, and which key it was is not read. The server notifies of presses
/// only while they are waited for, so that typing costs nothing. The wheel is no press. A server
/// without XInput 2.2 has no presses to notice. Main thread only.
class X11Presses {
public:
    X11Presses(X11Connection& connection, std::function<void()> pressed);
    ~X11Presses();
    X11Presses(const X11Presses&) = delete;
    X11Presses& operator=(const X11Presses&) = delete;

    /// Waits for a press from now on; `pressed` is called with the first, from the loop.
    void await();

    /// Fetches what the server has sent up to now: a press among it is noticed before any timer
    /// fires. One round trip, while presses are awaited.
    void catchUp();

private:
    void select(std::uint32_t kinds);
    void handle(const xcb_generic_event_t& event);
    void stop();

    X11Connection& connection_;
    std::function<void()> pressed_;
    std::uint8_t extension_ = 0;
    bool isAwaiting_ = false;
    Subscription events_;
};

} // namespace brindlex
