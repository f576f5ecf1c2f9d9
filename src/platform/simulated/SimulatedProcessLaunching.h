#pragma once

#include "platform/ProcessLaunching.h"
#include "platform/simulated/SimulatedJournal.h"

#include <optional>
#include <utility>

namespace brindlex {

/// Records what is launched, or refuses with a reason.
class SimulatedProcessLaunching : public ProcessLaunching {
public:
    struct Launch {
        std::filesystem::path executable{};
        std::vector<std::string> arguments{};

        bool operator==(const Launch&) const = default;
    };

    explicit SimulatedProcessLaunching(SimulatedJournal::Writer journal = {})
        : journal_(journal) { }

    void launch(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
        Failed failed) override
    {
        journal_.add("launch " + executable.string());
        if (refusal)
            failed(*refusal);
        else
            launches.push_back({executable, arguments});
    }

    std::vector<Launch> launches{};
    std::optional<std::string> refusal{};

private:
    SimulatedJournal::Writer journal_;
};

} // namespace brindlex
