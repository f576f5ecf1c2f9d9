#pragma once

#include "foundation/Subscription.h"
#include "platform/linux/tray/DockedIcon.h"
#include "platform/linux/x11/X11ManagerSelection.h"

#include <memory>
#include <string>

namespace brindlex {

/// Keeps the program's icon in the tray of the X server (the owner of `_NET_SYSTEM_TRAY_S`), as
/// long as this object exists: it comes with a tray that is there or comes later, goes with it, and
/// comes again with the next one. Main thread only.
class DockingTray {
public:
    struct Handlers {
        /// Whether a tray has the icon, at each change.
        std::function<void(bool isDocked)> changed{};
        std::function<void(int button)> pressed{};
        std::function<void(bool isOver)> hovered{};
    };

    /// Handlers are called from the loop.
    DockingTray(X11Connection& connection, const std::string& title, Handlers handlers);
    DockingTray(const DockingTray&) = delete;
    DockingTray& operator=(const DockingTray&) = delete;

    bool isDocked() const { return icon_ && icon_->isDocked(); }
    void setTitle(const std::string& title);

private:
    void receive(const xcb_generic_event_t& event);
    void moveTo(xcb_window_t tray);
    void leave();

    X11Connection& connection_;
    std::string title_;
    const Handlers handlers_;
    std::unique_ptr<DockedIcon> icon_;
    /// Where the icon was given to.
    xcb_window_t iconsTray_ = XCB_WINDOW_NONE;
    X11ManagerSelection tray_;
    Subscription events_;
};

} // namespace brindlex
