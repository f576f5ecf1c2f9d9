#pragma once

#include "foundation/Date.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

namespace brindlex {

/// A log file that nobody has written to for longer than this goes.
inline constexpr Seconds logFileLifetime = 2'592'000;

/// The folder is not looked through again before this has passed.
inline constexpr Seconds logPruningInterval = 3'600;

/// Whether a name is one of a current or a rotated log file: it ends in ".log", or in ".log.", and
/// digits.
bool isLogFileName(std::string_view name);

/// Removes old log files from a folder, at most once an hour. One thread at a time.
class LogPruning {
public:
    using Folder = std::function<std::optional<std::filesystem::path>()>;

    /// Asks for the folder only when a pass is due. A pass counts as done also when there is no
    /// folder or it cannot be read, and a file that cannot be removed stays without a word.
    void prune(const Folder& folder, Date now);

private:
    std::optional<Date> lastPruneDate_;
};

} // namespace brindlex
