#pragma once

#include "platform/OverlayPanel.h"
#include "platform/linux/x11/X11Connection.h"

#include <memory>

namespace brindlex {

/// The panel as a window that the window manager does not know of.
///
/// It lets every click through and never has the focus. With a compositor it is translucent and
/// fades in within 0.12 s and out within 0.25 s; without one it is dark, comes and goes at once. It
/// stands in the middle of the screen with the active window, else of that with the pointer. Made
/// on first use and kept; timers run only while it fades. Main thread only.
class QtOverlayPanel : public OverlayPanel {
public:
    explicit QtOverlayPanel(X11Connection& connection);
    ~QtOverlayPanel() override;
    QtOverlayPanel(const QtOverlayPanel&) = delete;
    QtOverlayPanel& operator=(const QtOverlayPanel&) = delete;

    /// Makes the window and loads the fonts for the text. A font for Chinese costs 3.5 MB: warm up
    /// what will be shown.
    void warmUp(const std::string& text) override;
    void show(const std::string& text) override;
    void fadeOut() override;

private:
    class Window;
    Window& window();

    X11Connection& connection_;
    std::unique_ptr<Window> window_;
};

} // namespace brindlex
