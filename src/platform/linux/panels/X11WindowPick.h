#pragma once

#include "foundation/Geometry.h"
#include "platform/linux/panels/X11InputHold.h"
#include "platform/linux/watchdog/TapWatchdog.h"
#include "platform/linux/windows/X11WindowReading.h"
#include "platform/linux/x11/X11Connection.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace brindlex {

/// One pick of a window, from the crosshair to what it has found. Main thread only.
class X11WindowPick : public std::enable_shared_from_this<X11WindowPick> {
public:
    using Found = std::optional<X11WindowDescription>;

    /// `found` is called once, from the loop, when all is given back; not after the end of this
    /// object. The watchdog outlives it.
    X11WindowPick(TapWatchdog& watchdog, std::function<void(const Found&)> found);
    ~X11WindowPick();
    X11WindowPick(const X11WindowPick&) = delete;
    X11WindowPick& operator=(const X11WindowPick&) = delete;

    void start();

private:
    void attempt();
    void showCrosshair();
    void receive(const xcb_generic_event_t& event);
    void releaseButton(const xcb_button_release_event_t& event);
    void pressKey(const xcb_key_press_event_t& event);
    void releaseKey(const xcb_key_release_event_t& event);
    std::uint32_t symbolOf(xcb_keycode_t key);
    void moveBy(int x, int y);
    void finishAt(int x, int y);
    void finishAtPointer();
    void finish(const Found& found);
    void giveBack();

    TapWatchdog& watchdog_;
    std::function<void(const Found&)> found_;
    X11Connection connection_;
    std::optional<X11InputHold> hold_;
    QTimer attempts_;
    int made_ = 0;
    xcb_button_t pressedButton_ = 0;
    xcb_keycode_t pressedKey_ = 0;
    Subscription events_;
};

} // namespace brindlex
