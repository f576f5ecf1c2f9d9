#pragma once

#include "logviewer/LogEntry.h"

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace brindlex {

/// Which entries of a log are shown.
struct LogFilter {
    std::set<LogLevel> levels{
        LogLevel::info, LogLevel::notice, LogLevel::warn, LogLevel::error, LogLevel::raw};
    /// Text to be found in the message, the category or the location, in whatever case; white space
    /// at its ends does not count, and no text stands for any.
    std::string query{};

    bool operator==(const LogFilter&) const = default;
};

/// Where the entries stand that are shown, in their order.
std::vector<std::size_t> visibleEntries(
    const std::vector<LogEntry>& entries, const LogFilter& filter);

} // namespace brindlex
