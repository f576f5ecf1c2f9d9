#pragma once

#include "platform/Identities.h"

namespace brindlex {

/// Brings applications to the front that run already. Main thread only.
class ApplicationActivating {
public:
    virtual ~ApplicationActivating() = default;

    /// Asks for the application to be the frontmost one, with the window in it that was used last.
    /// One that is in front stays as it is, one that has quit is not started. Returns at once.
    virtual void activate(ProcessIdentity application) = 0;
};

} // namespace brindlex
