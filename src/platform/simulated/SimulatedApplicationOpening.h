#pragma once

#include "platform/ApplicationOpening.h"
#include "platform/simulated/SimulatedJournal.h"

#include <vector>

namespace brindlex {

/// Records what is opened.
class SimulatedApplicationOpening : public ApplicationOpening {
public:
    explicit SimulatedApplicationOpening(SimulatedJournal::Writer journal = {}) : journal_(journal)
    {
    }

    void open(const std::filesystem::path& application) override
    {
        journal_.add("open " + application.string());
        opened.push_back(application);
    }

    std::vector<std::filesystem::path> opened{};

private:
    SimulatedJournal::Writer journal_;
};

} // namespace brindlex
