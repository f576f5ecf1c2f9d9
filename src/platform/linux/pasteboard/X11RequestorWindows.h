#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QObject>

#include <vector>

namespace brindlex {

/// Windows that are never shown, by which selections are requested. One thread only.
///
/// Each request has a window to itself, so that what is sent too late reaches nobody. A window that
/// somebody may still write to is kept for some seconds before it is destroyed: simple applications
/// do not survive that the window goes to which they send.
class X11RequestorWindows {
public:
    explicit X11RequestorWindows(X11Connection& connection) : connection_(connection) { }

    xcb_window_t take();

    /// `isFinished` says that nobody will write to the window any more.
    void giveBack(xcb_window_t window, bool isFinished);

private:
    X11Connection& connection_;
    std::vector<xcb_window_t> free_;
    /// Ends the waiting for windows to be destroyed.
    QObject context_;
};

} // namespace brindlex
