#pragma once

#include "foundation/Subscribers.h"
#include "platform/KeyablePanel.h"
#include "platform/linux/panels/X11PressesOutside.h"
#include "platform/linux/x11/X11Connection.h"

#include <memory>

class QWidget;

namespace brindlex {

/// The panel as a window that the window manager does not know of.
///
/// It takes the keyboard alone, from whatever window has the focus and keeps it: no program loses
/// the focus, and input methods work. Where another program keeps the keyboard for 0.3 s, and when
/// the loop stands still while the user does something, the panel notifies that it has lost the
/// keys, and the log says so. Without a compositor it comes at once instead of fading in. Made on
/// first use and kept. Main thread only.
class QtKeyablePanel : public KeyablePanel {
public:
    explicit QtKeyablePanel(X11Connection& connection);
    ~QtKeyablePanel() override;
    QtKeyablePanel(const QtKeyablePanel&) = delete;
    QtKeyablePanel& operator=(const QtKeyablePanel&) = delete;

    /// Makes the view the content of the panel, in place of the one before, and returns the size
    /// that it wants. The view has the focus while the panel has the keys.
    Size host(std::unique_ptr<QWidget> view);

    /// Ends the view.
    void empty();

    bool isVisible() const override;
    double alpha() const override;
    void setAlpha(double alpha) override;
    Rect frame() const override;
    void setFrame(const Rect& frame) override;
    void orderFront() override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;
    void displayIfNeeded() override;
    void fadeIn() override;
    Subscription observeDidResignKey(Handler handler) override;
    Subscription observePressOutside(Handler handler) override;

private:
    class Window;
    Window& window();

    X11Connection& connection_;
    Subscribers<Handler> resignObservers_;
    Subscribers<Handler> pressObservers_;
    X11PressesOutside presses_;
    std::unique_ptr<Window> window_;
};

} // namespace brindlex
