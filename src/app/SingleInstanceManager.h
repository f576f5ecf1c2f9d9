#pragma once

#include "app/Preferences.h"
#include "platform/DistributedNotifications.h"
#include "platform/ProgramInstances.h"

#include <optional>

namespace brindlex {

/// Finds the instance of the program that was there first, and leaves the stage to it.
class SingleInstanceManager {
public:
    explicit SingleInstanceManager(ProgramInstances& instances);

    /// The first running instance that is not this process.
    std::optional<ProgramInstances::ProcessIdentifier> existingInstance() const;

    /// The same, unless this process was started to take the place of that instance.
    std::optional<ProgramInstances::ProcessIdentifier> instanceToYieldTo(
        const Preferences& preferences) const;

    /// Asks the instance to show itself, and brings its windows to the front.
    void wake(ProgramInstances::ProcessIdentifier instance,
        DistributedNotifications& notifications) const;

private:
    ProgramInstances& instances_;
};

} // namespace brindlex
