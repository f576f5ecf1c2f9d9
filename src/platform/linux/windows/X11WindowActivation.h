#pragma once

#include "platform/Identities.h"
#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

/// Asks the window manager to bring a window to the front, as a pager does: first its virtual
/// desktop, then the window itself, also one that is minimised. Returns when the X server has the
/// requests.
void activateWindow(X11Connection& connection, xcb_window_t window);

/// Asks the window manager to bring the windows of a process to the front, as a pager does: first
/// the virtual desktop of a window, then the window. Nothing happens for a process without windows.
/// Returns when the X server has the requests.
void activateWindowsOf(X11Connection& connection, ProcessIdentity process);

} // namespace brindlex
