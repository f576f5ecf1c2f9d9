#pragma once

#include "platform/ProgramRelaunching.h"
#include "platform/simulated/SimulatedJournal.h"

#include <optional>

namespace brindlex {

/// Counts the new instances, or refuses with a reason.
class SimulatedProgramRelaunching : public ProgramRelaunching {
public:
    explicit SimulatedProgramRelaunching(SimulatedJournal::Writer journal = {}) : journal_(journal)
    {
    }

    void relaunch(Finished finished) override
    {
        journal_.add("relaunch");
        if (refusal) {
            finished(fail(*refusal));
            return;
        }
        ++instances;
        finished(Done{});
    }

    int instances = 0;
    std::optional<std::string> refusal{};

private:
    SimulatedJournal::Writer journal_;
};

} // namespace brindlex
