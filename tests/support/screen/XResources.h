#pragma once

#include "support/screen/XConnection.h"

namespace brindlex {

/// Sets how large the desktop draws things, as its settings do: 96 is the usual size.
void setDotsPerInch(const XConnection& server, double dotsPerInch);

} // namespace brindlex
