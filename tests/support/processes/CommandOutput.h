#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What became of a command that has been waited for.
struct CommandOutput {
    /// Nothing when it was ended by a signal or took more than a minute.
    std::optional<int> status{};
    /// Both output streams.
    std::string text{};
};

/// Runs a command with the variables of `environment` put over those of this process.
CommandOutput outputOf(const std::vector<std::string>& command,
    const std::map<std::string, std::string>& environment = {});

} // namespace brindlex
