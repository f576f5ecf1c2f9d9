#pragma once

#include "support/screen/DesktopWindows.h"
#include "support/screen/XConnection.h"

#include <optional>
#include <string>

namespace brindlex {

/// A program that has the pointer, the keys or both to itself, as lockers and menus have, with a
/// window that no window manager looks after.
class InputGrab {
public:
    struct What {
        bool pointer = true;
        bool keyboard = true;
        ScreenArea area{0, 0, 1280, 800};
        /// The type that the window says it has; none when empty.
        std::string type{};
    };

    /// Takes the input and waits until it has it; that somebody else has it is a failure of the
    /// test.
    explicit InputGrab(const What& what);
    ~InputGrab();
    InputGrab(const InputGrab&) = delete;
    InputGrab& operator=(const InputGrab&) = delete;

private:
    XConnection server_;
    xcb_window_t window_;
};

/// Whether others have both the pointer and the keys to themselves; takes nothing.
bool isAllInputTaken(const XConnection& server);

} // namespace brindlex
