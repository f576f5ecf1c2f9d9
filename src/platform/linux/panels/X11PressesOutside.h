#pragma once

#include "platform/linux/x11/X11RawPresses.h"

#include <functional>

namespace brindlex {

/// Notices presses of buttons and touchscreens on what belongs to other programs, the desktop
/// included; see `X11RawPresses`. Each costs some round trips. Main thread only.
class X11PressesOutside {
public:
    /// `pressed` is called with each, from the loop.
    X11PressesOutside(X11Connection& connection, std::function<void()> pressed);

    void listen() { presses_.listen(); }
    /// May be called by who is notified.
    void stop() { presses_.stop(); }

private:
    bool isPointerOutside() const;

    X11Connection& connection_;
    X11RawPresses presses_;
};

} // namespace brindlex
