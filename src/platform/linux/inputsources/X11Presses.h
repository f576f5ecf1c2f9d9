#pragma once

#include "platform/linux/x11/X11RawPresses.h"

#include <functional>

namespace brindlex {

/// Waits for a hand to press a key, a button or a touchscreen; see `X11RawPresses`. Main thread
/// only.
class X11Presses {
public:
    X11Presses(X11Connection& connection, std::function<void()> pressed);

    /// Waits for a press from now on; `pressed` is called with the first, from the loop.
    void await() { presses_.listen(); }

    /// Fetches what the server has sent up to now: a press among it is noticed before any timer
    /// fires. One round trip, while presses are awaited.
    void catchUp();

private:
    X11Connection& connection_;
    X11RawPresses presses_;
};

} // namespace brindlex
