#pragma once

#include "foundation/Subscription.h"
#include "platform/linux/x11/X11Connection.h"

#include <functional>
#include <string_view>

namespace brindlex {

/// Follows who manages something for all programs of a screen: the window that owns a selection
/// whose name ends in the number of the screen, such as `_NET_SYSTEM_TRAY_S0`. Main thread only.
class X11ManagerSelection {
public:
    /// Called from the loop with the owner of the moment, when one announces itself, be it the same
    /// as before, and when the owner has gone.
    using Handler = std::function<void(xcb_window_t owner)>;

    /// `name` is the selection's without the number.
    X11ManagerSelection(X11Connection& connection, std::string_view name, Handler handler);
    ~X11ManagerSelection();
    X11ManagerSelection(const X11ManagerSelection&) = delete;
    X11ManagerSelection& operator=(const X11ManagerSelection&) = delete;

    /// The window that manages; none where nobody does.
    xcb_window_t owner() const { return owner_; }

private:
    void receive(const xcb_generic_event_t& event);
    bool isAnnouncement(const xcb_generic_event_t& event) const;
    bool isEndOfOwner(const xcb_generic_event_t& event) const;
    void follow(xcb_window_t owner);
    void findOwner();

    X11Connection& connection_;
    const xcb_atom_t selection_;
    const xcb_atom_t manager_;
    const Handler handler_;
    xcb_window_t owner_ = XCB_WINDOW_NONE;
    Subscription events_;
};

} // namespace brindlex
