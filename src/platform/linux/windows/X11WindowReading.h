#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <compare>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What a window says of itself, as well-formed text of bounded length.
struct X11WindowDescription {
    /// The two parts of WM_CLASS.
    std::string instance{};
    std::string className{};
    /// 0 when the window names none that can be one of this machine. That of a window without class
    /// and process is the one of which the server knows.
    std::int64_t processIdentifier = 0;
    /// The window itself when there is neither class nor process; 0 otherwise.
    xcb_window_t nameless = 0;

    bool operator==(const X11WindowDescription&) const = default;
    auto operator<=>(const X11WindowDescription&) const = default;
};

/// The window that the window manager calls active; 0 when it names none.
xcb_window_t activeWindow(X11Connection& connection);

/// Calls the handler from the loop each time the window manager names an active window, be it the
/// same.
Subscription observeActiveWindow(X11Connection& connection, std::function<void()> handler);

/// The windows that the window manager manages, oldest first.
std::vector<xcb_window_t> managedWindows(X11Connection& connection);

/// The descriptions of the windows, in their order, at the price of one round trip for all and one
/// more for each without class and process; nothing for a window that has gone.
std::vector<std::optional<X11WindowDescription>> describe(
    X11Connection& connection, const std::vector<xcb_window_t>& windows);

/// Only what the windows say themselves, at the price of one round trip for all: a frame that a
/// window manager has put around a window says nothing.
std::vector<std::optional<X11WindowDescription>> claimsOf(
    X11Connection& connection, const std::vector<xcb_window_t>& windows);

/// The title of the window; empty when it has none or has gone.
std::string windowTitle(X11Connection& connection, xcb_window_t window);

/// The titles of the windows, in their order, at the price of one round trip for all.
std::vector<std::string> windowTitles(
    X11Connection& connection, const std::vector<xcb_window_t>& windows);

} // namespace brindlex
