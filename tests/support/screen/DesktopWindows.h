#pragma once

#include "support/screen/XConnection.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// A rectangle of the screen, in pixels from its upper left corner.
struct ScreenArea {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int centreX() const { return x + width / 2; }
    int centreY() const { return y + height / 2; }

    bool operator==(const ScreenArea&) const = default;
};

/// The windows of a desktop, as a pager sees them and acts on them.
class DesktopWindows {
public:
    explicit DesktopWindows(const XConnection& server) : server_(server) { }

    /// The windows that the window manager looks after, oldest first.
    std::vector<xcb_window_t> managed() const;
    /// The first managed window of a class; nothing when there is none.
    std::optional<xcb_window_t> withClass(const std::string& className) const;
    /// The windows on the screen that the window manager does not look after, of one process.
    std::vector<xcb_window_t> unmanagedOf(int process) const;

    /// The window in front; 0 when there is none.
    xcb_window_t active() const;
    /// The window that gets the keys.
    xcb_window_t focused() const;
    /// Whether the window, or one within it, gets the keys.
    bool hasFocus(xcb_window_t window) const;

    std::string classOf(xcb_window_t window) const;
    std::string titleOf(xcb_window_t window) const;
    ScreenArea areaOf(xcb_window_t window) const;
    bool isOnScreen(xcb_window_t window) const;

    /// Asks the window manager to bring the window to the front, as a pager does, and waits until
    /// it is there and gets the keys.
    bool activate(xcb_window_t window) const;
    /// The same without waiting.
    void requestActivation(xcb_window_t window) const;
    /// Asks the window manager to place the window's contents here.
    void place(xcb_window_t window, const ScreenArea& area) const;

private:
    const XConnection& server_;
};

} // namespace brindlex
