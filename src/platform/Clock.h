#pragma once

#include "foundation/Date.h"

namespace brindlex {

/// The two clocks of a computer. Callable from any thread.
class Clock {
public:
    virtual ~Clock() = default;

    /// The system clock, which may be set and may go backwards.
    virtual Date now() const = 0;

    /// Seconds since some moment before the start of the program; never goes backwards.
    virtual Seconds continuousTime() const = 0;
};

} // namespace brindlex
