#pragma once

#include "foundation/Observable.h"
#include "platform/linux/appearance/DesktopAppearance.h"
#include "platform/linux/x11/X11ManagerSelection.h"

namespace brindlex {

/// What the settings manager of the screen (XSETTINGS) says of the appearance, followed while it
/// changes, also when one comes, goes or follows another. Main thread only.
class XSettingsAppearance {
public:
    explicit XSettingsAppearance(X11Connection& connection);
    ~XSettingsAppearance();
    XSettingsAppearance(const XSettingsAppearance&) = delete;
    XSettingsAppearance& operator=(const XSettingsAppearance&) = delete;

    const Observable<StatedAppearance>& current() const { return current_; }

private:
    void receive(const xcb_generic_event_t& event);
    void follow(xcb_window_t manager);
    void read();

    X11Connection& connection_;
    Observable<StatedAppearance> current_{StatedAppearance{}};
    /// The window whose property is followed.
    xcb_window_t followed_ = XCB_WINDOW_NONE;
    X11ManagerSelection manager_;
    Subscription events_;
};

} // namespace brindlex
