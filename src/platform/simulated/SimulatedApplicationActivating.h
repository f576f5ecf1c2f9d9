#pragma once

#include "platform/ApplicationActivating.h"
#include "platform/simulated/SimulatedApplications.h"

#include <vector>

namespace brindlex {

/// Brings applications of a simulated computer to the front, and notes which.
class SimulatedApplicationActivating final : public ApplicationActivating {
public:
    explicit SimulatedApplicationActivating(SimulatedApplications& applications)
        : applications_(applications)
    {
    }

    void activate(ProcessIdentity application) override
    {
        activated.push_back(application);
        applications_.bringToFront(application);
    }

    /// Those that were to come to the front, in order, also those that had quit.
    std::vector<ProcessIdentity> activated{};

private:
    SimulatedApplications& applications_;
};

} // namespace brindlex
