#pragma once

#include <xcb/xcb.h>

namespace brindlex {

/// Takes the pointer and the keys from all other programs, before there is anything to see.
///
/// A window that is going to have them takes them over through the same connection; what it has
/// not taken over ends with the hold.
class X11InputHold {
public:
    explicit X11InputHold(xcb_connection_t* server);
    ~X11InputHold();
    X11InputHold(const X11InputHold&) = delete;
    X11InputHold& operator=(const X11InputHold&) = delete;

    /// Whether both are taken now; nothing is when another program has one of them.
    bool take();

    /// Which has the input meanwhile: once it is off the screen all is given back.
    xcb_window_t window() const { return window_; }

private:
    xcb_connection_t* server_;
    xcb_window_t window_;
};

} // namespace brindlex
