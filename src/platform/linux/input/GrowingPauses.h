#pragma once

#include "foundation/Date.h"

#include <algorithm>
#include <utility>

namespace brindlex {

/// How long to wait from attempt to attempt: soon at first, and never more than some seconds.
class GrowingPauses {
public:
    static constexpr Seconds shortest = 0.05;
    static constexpr Seconds longest = 3.2;

    /// Twice as long as the last time.
    Seconds next() { return std::exchange(next_, std::min(2 * next_, longest)); }

private:
    Seconds next_ = shortest;
};

} // namespace brindlex
