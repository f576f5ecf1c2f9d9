#pragma once

#include "platform/SessionLock.h"

namespace brindlex {

/// A session that a test locks.
class SimulatedSessionLock : public SessionLock {
public:
    bool isLocked() override
    {
        ++timesAsked;
        return locked;
    }

    bool locked = false;
    int timesAsked = 0;
};

} // namespace brindlex
