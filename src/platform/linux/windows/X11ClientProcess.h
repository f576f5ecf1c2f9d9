#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <cstdint>

namespace brindlex {

/// The process that made the window, as the X server knows it of programs on this machine; 0 when
/// it does not, or the window has gone. Costs one round trip.
std::int64_t clientProcess(X11Connection& connection, xcb_window_t window);

} // namespace brindlex
