#pragma once

#include "platform/linux/x11/X11Connection.h"

class QScreen;

namespace brindlex {

/// The screen where the user looks: that with the middle of the active window, else that with the
/// pointer, else the primary one. Nothing only when there is no screen at all. Main thread only;
/// costs two round trips to the X server.
QScreen* activeScreen(X11Connection& connection);

} // namespace brindlex
