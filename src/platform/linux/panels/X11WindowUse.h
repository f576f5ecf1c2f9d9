#pragma once

#include "foundation/Subscription.h"
#include "platform/linux/panels/RecentWindows.h"
#include "platform/linux/x11/X11Connection.h"

#include <set>

namespace brindlex {

/// Follows the order in which the user works in windows.
///
/// A window is used from the moment when it has the keys. The server reports that of each window
/// by itself, so that none is missed however soon the next one has them; the property that names
/// the active window has only its last value left by then. A window that opens counts as used
/// just before the one that has the keys then. Main thread only.
class X11WindowUse {
public:
    explicit X11WindowUse(X11Connection& connection);

    /// The windows as they were used, up to the events that have been handed out so far.
    const RecentWindows& recent() const { return recent_; }

private:
    void receive(const xcb_generic_event_t& event);
    void receiveFocus(const xcb_focus_in_event_t& event);
    void findWindows();
    void follow(xcb_window_t window);

    X11Connection& connection_;
    RecentWindows recent_;
    std::set<xcb_window_t> followed_;
    Subscription events_;
};

} // namespace brindlex
