#pragma once

#include "platform/ProgramInstances.h"

#include <optional>

namespace brindlex {

/// Finds the instance of the program that was there first.
class SingleInstanceManager {
public:
    explicit SingleInstanceManager(ProgramInstances& instances);

    /// The first running instance that is not this process.
    std::optional<ProgramInstances::ProcessIdentifier> existingInstance() const;

private:
    ProgramInstances& instances_;
};

} // namespace brindlex
