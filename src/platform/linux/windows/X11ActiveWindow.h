#pragma once

#include "foundation/Subscribers.h"
#include "foundation/Subscription.h"
#include "platform/linux/windows/ActiveWindow.h"
#include "platform/linux/x11/X11Connection.h"

#include <QTimer>

#include <functional>
#include <optional>

namespace brindlex {

/// Follows which window the user works in.
///
/// Between two windows a window manager may name none for a moment: that none is active is believed
/// only when it has lasted 50 ms, while a window is believed at once. The connection gets the
/// property changes of the active window, and of no other. Main thread only.
class X11ActiveWindow {
public:
    explicit X11ActiveWindow(X11Connection& connection);

    /// The active window's number, without a round trip; 0 when none is active.
    xcb_window_t window() const { return window_; }

    /// The active window as it is now, unless it is one of this process; costs two round trips.
    std::optional<ActiveWindow> current() const;

    /// The callback runs from the loop each time `window` has changed.
    Subscription observe(std::function<void()> handler);

    /// The callback runs from the loop each time the active window has changed its title.
    Subscription observeTitle(std::function<void()> handler);

private:
    void notifyOf(const xcb_property_notify_event_t& change);
    void read();
    void doubt();
    void doubtUnlessManaged();
    void decide();
    bool isManaged(xcb_window_t window) const;
    void become(xcb_window_t window);

    X11Connection& connection_;
    xcb_atom_t active_;
    xcb_atom_t managed_;
    xcb_atom_t title_;
    xcb_window_t window_ = 0;
    Subscribers<std::function<void()>> observers_;
    Subscribers<std::function<void()>> titleObservers_;
    QTimer believeNone_;
    Subscription events_;
};

} // namespace brindlex
