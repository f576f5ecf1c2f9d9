#pragma once

#include "platform/Clock.h"

namespace brindlex {

/// The computer's clocks.
class PosixClock : public Clock {
public:
    Date now() const override;
    Seconds continuousTime() const override;
};

} // namespace brindlex
