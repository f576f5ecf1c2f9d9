#pragma once

#include "platform/SessionLock.h"
#include "platform/linux/x11/X11Connection.h"

#include <span>

namespace brindlex {

/// What lies over the windows that a window manager looks after.
struct X11UnmanagedWindow {
    /// Whether it says that it is a menu.
    bool isMenu = false;
    /// Whether it is as large as a screen can be.
    bool coversScreen = false;

    bool operator==(const X11UnmanagedWindow&) const = default;
};

/// Whether it is a menu that has the input to itself, and not what hides all menus below.
/// `windows` has the topmost first.
bool isMenuOpen(std::span<const X11UnmanagedWindow> windows);

/// Lockers by what they all do to the X server: they have the pointer and the keyboard to
/// themselves, for good.
///
/// So has an open menu, which is known by the type of its window. What has only one of the two, as
/// a drag has, a launcher or a menu of the simpler kind, locks nothing. What has both and is no
/// menu is taken for a locker: a window that is moved by hand, a viewer of another computer.
class X11SessionLock : public SessionLock {
public:
    explicit X11SessionLock(X11Connection& connection);
    ~X11SessionLock() override;
    X11SessionLock(const X11SessionLock&) = delete;
    X11SessionLock& operator=(const X11SessionLock&) = delete;

    bool isLocked() override;

private:
    bool isAllInputTaken();

    X11Connection& connection_;
    /// A window that is never shown.
    xcb_window_t hidden_;
};

} // namespace brindlex
