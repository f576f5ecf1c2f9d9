#pragma once

#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"

#include <optional>
#include <string>

namespace brindlex {

/// A session bus that is nobody else's. It has no services to start and ends with the object; one
/// that cannot be started ends the process with the reason.
class PrivateBus {
public:
    PrivateBus();

    const std::string& address() const { return address_; }

    /// Ends the bus, as a crash of it would.
    void end();
    /// Stops it where it is, so that it replies to nobody.
    void freeze();

private:
    TemporaryFolder folder_;
    std::optional<ChildProcess> daemon_;
    std::string address_;
};

} // namespace brindlex
