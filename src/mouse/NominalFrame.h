#pragma once

#include "foundation/Date.h"

namespace brindlex {

/// How long a frame is where no screen says it.
inline constexpr Seconds nominalFrame = 1.0 / 60;

} // namespace brindlex
