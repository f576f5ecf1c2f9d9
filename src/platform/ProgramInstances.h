#pragma once

#include "platform/Identities.h"

#include <string>
#include <vector>

namespace brindlex {

/// The processes of this program in the user's session. Main thread only.
class ProgramInstances {
public:
    using ProcessIdentifier = ProcessIdentity;

    virtual ~ProgramInstances() = default;

    virtual ProcessIdentifier current() const = 0;

    /// The processes with the identifier that were started before this one, oldest first, and this
    /// one. Of two processes that ask at the same moment exactly one is given the other.
    virtual std::vector<ProcessIdentifier> running(const std::string& bundleID) = 0;

    /// Brings the windows of the other process to the front, if it has any.
    virtual void activate(ProcessIdentifier instance) = 0;

    /// Asks this process to end; it does so once control is back in the loop.
    virtual void terminate() = 0;
};

} // namespace brindlex
