#pragma once

#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

/// Whether windows can be translucent at the moment. Costs one round trip.
bool hasCompositor(X11Connection& connection);

} // namespace brindlex
