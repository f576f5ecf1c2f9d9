#pragma once

#include "platform/linux/x11/X11Properties.h"

#include <optional>
#include <vector>

namespace brindlex {

/// The request for the order in which the window manager's windows lie upon each other; see
/// `X11PropertyRequest`.
class X11WindowStackRequest {
public:
    explicit X11WindowStackRequest(X11Connection& connection);

    /// The windows of all virtual desktops, the topmost first; nothing when the window manager does
    /// not say it. May be called once.
    std::optional<std::vector<xcb_window_t>> fromTheTop();

private:
    X11PropertyRequest stacking_;
};

} // namespace brindlex
