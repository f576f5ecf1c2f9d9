#pragma once

namespace brindlex {

/// Whether the session is locked, so that whoever is at the computer need not be its user.
class SessionLock {
public:
    virtual ~SessionLock() = default;

    /// As it is now; costs a round trip to the system at the most.
    ///
    /// True as well while another program has all input to itself in the way of a locker, where the
    /// system cannot distinguish the two. Main thread only.
    virtual bool isLocked() = 0;
};

} // namespace brindlex
