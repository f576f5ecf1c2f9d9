#pragma once

#include "support/basics/TemporaryFolder.h"
#include "support/hardware/PlayedInput.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/DesktopWindows.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
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
    int process() const { return terminal_->id(); }

    /// Everything that arrived since the last `forget`, as UTF-8.
    std::string text() const;
    void forget() { forgotten_ = contentOf(file_).size(); }

    /// Waits until exactly this has arrived.
    bool receives(const std::string& text) const;

    /// Types the keys and waits until exactly this has arrived; `isReady` waits until the daemon
    /// looks after the window. Now and then a terminal and Fcitx wait for each other for ever when
    /// keys come fast: then the terminal is opened anew and all is done again.
    bool receives(const std::string& text, const PlayedInput& input, std::string_view keys,
        const std::function<bool()>& isReady);

private:
    void open();

    const DesktopWindows& windows_;
    std::string className_;
    std::vector<std::string> terminalOptions_;
    TemporaryFolder folder_;
    std::filesystem::path file_;
    std::size_t forgotten_ = 0;
    std::unique_ptr<ChildProcess> terminal_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
};

} // namespace brindlex
