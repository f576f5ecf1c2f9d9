#pragma once

#include "support/ChildProcess.h"
#include "support/DesktopWindows.h"
#include "support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace brindlex {

/// A terminal window that keeps what is typed into it, so that a test sees what arrived.
class TypingWindow {
public:
    /// Opens the window, brings it to the front and waits until it can be typed into; `className`
    /// names its application.
    TypingWindow(const DesktopWindows& windows, const std::string& className,
        const std::vector<std::string>& terminalOptions = {});

    xcb_window_t window() const { return window_; }
    int process() const { return terminal_.id(); }

    /// Everything that arrived since the last `forget`, as UTF-8.
    std::string text() const;
    void forget() { forgotten_ = contentOf(file_).size(); }

    /// Waits until exactly this has arrived.
    bool receives(const std::string& text) const;

private:
    TemporaryFolder folder_;
    std::filesystem::path file_;
    std::size_t forgotten_ = 0;
    ChildProcess terminal_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
};

} // namespace brindlex
