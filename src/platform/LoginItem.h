#pragma once

#include "foundation/Result.h"

#include <string>

namespace brindlex {

/// Whether the system starts the program when the user logs in. Main thread only.
class LoginItem {
public:
    /// `requiresApproval`: registered, and switched off by the system's own settings.
    enum class Status { notRegistered = 0, enabled = 1, requiresApproval = 2 };

    virtual ~LoginItem() = default;

    /// What the system would do at the next login, read anew each time.
    virtual Status status() = 0;

    /// Makes the status enabled, or returns the system's words for why it cannot be. A program that
    /// is started this way is given the option `--started-at-login`.
    virtual Result<Done, std::string> registerProgram() = 0;

    /// Makes the status not registered, or returns the system's words for why it cannot be.
    virtual Result<Done, std::string> unregisterProgram() = 0;
};

} // namespace brindlex
