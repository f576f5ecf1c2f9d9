#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <functional>
#include <string>

namespace brindlex {

/// The program's icon as a window of its own inside a tray of the X server (XEMBED), from the
/// request to be taken in to the end of this object. The tray decides about its place and its size.
/// Handlers do not end it. Main thread only.
class DockedIcon {
public:
    struct Handlers {
        /// The tray has taken the icon in.
        std::function<void()> docked{};
        /// A button was pressed on it, 1 being the primary one.
        std::function<void(int button)> pressed{};
        /// The pointer has come over it, or has left it.
        std::function<void(bool isOver)> hovered{};
    };

    /// `tray` is the window of the tray's manager; the title is for whoever lists the icons.
    DockedIcon(
        X11Connection& connection, xcb_window_t tray, const std::string& title, Handlers handlers);
    ~DockedIcon();
    DockedIcon(const DockedIcon&) = delete;
    DockedIcon& operator=(const DockedIcon&) = delete;

    bool isDocked() const { return isDocked_; }
    /// Whether it has been put out of its tray, and will not come back.
    bool hasEnded() const { return hasEnded_; }

    void setTitle(const std::string& title);
    /// Takes what concerns it of the events of the connection.
    void receive(const xcb_generic_event_t& event);

private:
    void create(xcb_window_t tray);
    void describe();
    void requestDock(xcb_window_t tray);
    void noteParent(const xcb_reparent_notify_event_t& event);
    void noteSize(const xcb_configure_notify_event_t& event);
    void press(const xcb_button_press_event_t& event);
    void paint();

    X11Connection& connection_;
    const Handlers handlers_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    xcb_visualid_t visual_ = XCB_NONE;
    xcb_colormap_t colours_ = XCB_NONE;
    int width_ = 0;
    int height_ = 0;
    bool isDocked_ = false;
    bool hasEnded_ = false;
};

} // namespace brindlex
