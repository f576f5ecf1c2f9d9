#pragma once

#include "platform/ProcessLaunching.h"

#include <optional>
#include <utility>

namespace brindlex {

/// Notes what is launched, or refuses with a reason.
class SimulatedProcessLaunching : public ProcessLaunching {
public:
    struct Launch {
        std::filesystem::path executable{};
        std::vector<std::string> arguments{};

        bool operator==(const Launch&) const = default;
    };

    void launch(const std::filesystem::path& executable, const std::vector<std::string>& arguments,
        Failed failed) override
    {
        if (refusal)
            failed(*refusal);
        else
            launches.push_back({executable, arguments});
    }

    std::vector<Launch> launches{};
    std::optional<std::string> refusal{};
};

} // namespace brindlex
