#pragma once

#include "support/screen/XConnection.h"

#include <optional>
#include <string>

namespace brindlex {

/// A window of the test's own, which may say of itself whatever a strange program says.
class PlainWindow {
public:
    struct Claims {
        /// The bytes of `WM_CLASS`; no such property when absent.
        std::optional<std::string> wmClass{};
        /// The number in `_NET_WM_PID`; no such property when absent.
        std::optional<std::uint32_t> process{};
        /// The bytes of `_NET_WM_NAME`.
        std::string title{};
    };

    /// Puts it on the screen and waits until the window manager looks after it.
    PlainWindow(const XConnection& server, const Claims& claims);
    ~PlainWindow();
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    xcb_window_t window() const { return window_; }

private:
    const XConnection& server_;
    xcb_window_t window_;
};

/// The `WM_CLASS` of a well-behaved window of a class.
std::string wmClass(const std::string& className);

} // namespace brindlex
