#pragma once

#include "support/screen/XConnection.h"

#include <cstdint>
#include <vector>

namespace brindlex {

/// Lets the first buttons be others to the applications, as `xmodmap -e "pointer = 3 2 1"` does,
/// and waits until they are; all others stay what they are.
void setPointerMap(const XConnection& server, const std::vector<std::uint8_t>& first);

} // namespace brindlex
