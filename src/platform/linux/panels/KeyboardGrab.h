#pragma once

#include "platform/linux/watchdog/TapWatchdog.h"

#include <QTimer>

#include <functional>

class QWindow;

namespace brindlex {

/// Takes the keyboard of the X server for a window, whichever window has the focus and keeps it.
///
/// Another program may have the keyboard for a moment, so that it is tried every 10 ms for 0.3 s.
/// The user gets it back if the loop hangs. Main thread only.
class KeyboardGrab {
public:
    /// `refused` is called from the loop when another program has kept the keyboard all the time.
    explicit KeyboardGrab(std::function<void()> refused);
    KeyboardGrab(const KeyboardGrab&) = delete;
    KeyboardGrab& operator=(const KeyboardGrab&) = delete;

    /// The window is on the screen and stays until the keyboard is given back. Nothing happens
    /// while it is taken or tried.
    void take(QWindow& window);

    /// Nothing happens while it is neither taken nor tried.
    void giveBack();

    bool isTaken() const { return isTaken_; }

private:
    void attempt();

    const std::function<void()> refused_;
    TapWatchdog watchdog_{TapWatchdog::besideThisProgram(), ""};
    QTimer attempts_;
    int made_ = 0;
    QWindow* window_ = nullptr;
    bool isTaken_ = false;
};

} // namespace brindlex
