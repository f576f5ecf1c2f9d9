#pragma once

#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

/// The desktop on the left or right of the present one comes to the front; nothing happens at the
/// ends of its row.
void switchDesktop(X11Connection& connection, int distance);

/// Shows the empty desktop, or the windows again.
void toggleShowingDesktop(X11Connection& connection);

} // namespace brindlex
