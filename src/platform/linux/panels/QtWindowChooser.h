#pragma once

#include "platform/linux/panels/OpenWindow.h"
#include "platform/linux/watchdog/TapWatchdog.h"
#include "platform/linux/x11/X11Connection.h"

#include <functional>
#include <memory>
#include <vector>

namespace brindlex {

/// Lets the user choose one of the open windows from a list in the middle of the active screen.
///
/// The list lies over everything and has the pointer and the keys to itself, as a menu has: arrows,
/// Tab, Page Up and Down, Home, End, Return, Escape, the wheel and clicks. A click elsewhere closes
/// it. It exists from `show` until it is closed, and costs nothing otherwise. When another program
/// keeps the keys for a second, or the loop stands still while the user does something, the list
/// closes and the log says so. Main thread only.
class QtWindowChooser {
public:
    using Choice = std::function<void(std::uint32_t window)>;

    /// Calls `choice` from the loop with the window that was chosen, once the list is gone and the
    /// keys are free.
    QtWindowChooser(X11Connection& connection, Choice choice);
    ~QtWindowChooser();
    QtWindowChooser(const QtWindowChooser&) = delete;
    QtWindowChooser& operator=(const QtWindowChooser&) = delete;

    bool isShown() const { return window_ != nullptr; }

    /// Shows these windows, of which there is at least one, with a row of them chosen.
    void show(const std::vector<OpenWindow>& windows, std::size_t chosen);

    /// Takes the list away with nothing chosen; nothing happens when there is none.
    void close();

private:
    class Window;
    void choose(std::uint32_t window);

    X11Connection& connection_;
    Choice choice_;
    /// The list has the pointer and the keys to itself; the user gets them back if the loop hangs.
    TapWatchdog watchdog_{TapWatchdog::besideThisProgram(), ""};
    std::unique_ptr<Window> window_;
};

} // namespace brindlex
