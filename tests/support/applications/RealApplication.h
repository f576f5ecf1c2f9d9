#pragma once

#include "support/processes/ChildProcess.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"

#include <map>
#include <string>
#include <vector>

namespace brindlex {

/// A program that people use, with a window whose title says how it stands.
class RealApplication {
public:
    /// How it is started, and how the title of its window begins.
    struct Start {
        std::vector<std::string> command{};
        std::map<std::string, std::string> environment{};
        std::string titleBegins{};
    };

    /// Starts it and waits until its window stands there, is active and has the keys.
    RealApplication(
        const VirtualDesktop& desktop, const DesktopWindows& windows, const Start& start);

    xcb_window_t window() const { return window_; }
    std::string title() const { return windows_.titleOf(window_); }

    /// The number behind `name=` in the title; nothing when there is none.
    std::optional<int> number(const std::string& name) const;

    /// Waits until the title begins so.
    bool shows(const std::string& titleBegins) const;

private:
    const DesktopWindows& windows_;
    ChildProcess process_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
};

/// A window with a menu bar, a plane to scroll and a text to edit, of the toolkit `gtk3`, `gtk4` or
/// `qt6`. Its title is `x=0 y=0 cursor=7 menu=0 text=one two three`.
RealApplication::Start toolkitWindow(const std::string& toolkit);

/// The browser `chromium` or `firefox` with a new profile and a page that is a link to a second
/// one. The title is `one x=0 y=0`, with the distances scrolled, and `two x=0 y=0`.
RealApplication::Start browserWindow(const VirtualDesktop& desktop, const std::string& browser);

} // namespace brindlex
