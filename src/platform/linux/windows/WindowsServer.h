#pragma once

#include <xcb/xcb.h>

namespace brindlex {

/// The connection of the program's windows to the X server, on which requests about them keep their
/// order with those of the window library; null where the windows are not those of an X server.
xcb_connection_t* windowsServer();

/// Returns when the X server has what the program's windows have asked for.
void waitForWindowsServer();

} // namespace brindlex
