#pragma once

#include "support/browsers/LocalWebServer.h"
#include "support/hardware/PlayedInput.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"

#include <string>
#include <vector>

namespace brindlex {

/// The browser `chromium` or `firefox` with a new profile, for which the hosts below `example.com`
/// and `example.org` are a server on this machine and no other host exists.
class WebBrowser {
public:
    /// Opens the page and waits until its window shows it.
    WebBrowser(const VirtualDesktop& desktop, const DesktopWindows& windows,
        const LocalWebServer& web, const std::string& program, const std::string& host);

    xcb_window_t window() const { return window_; }
    int process() const { return browser_.id(); }
    std::string output() const { return browser_.output(); }

    /// Opens the host's page in a new tab in front and waits until it is shown.
    bool open(const std::string& host);

    /// Types into the field of the page in front until it gets that; whether it does.
    bool takesKeys(const PlayedInput& hand) const;

    /// Waits until the page of the host is in front.
    bool shows(const std::string& host) const;

private:
    const DesktopWindows& windows_;
    /// Followed by an address: opens it, in a new tab where the browser runs.
    std::vector<std::string> command_;
    ChildProcess browser_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
};

} // namespace brindlex
