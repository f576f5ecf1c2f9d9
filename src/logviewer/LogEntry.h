#pragma once

#include "foundation/Date.h"
#include "log/Log.h"

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// A line of a log file, taken apart.
struct LogEntry {
    /// The subsystem's name, "#" and the number of the line among those that were read.
    std::string id{};
    /// Absent where the text below is no timestamp.
    std::optional<Date> timestamp{};
    /// As it stands in the file.
    std::string timestampString{};
    LogLevel level = LogLevel::raw;
    std::string category{};
    /// The place in the sources, "Brindlex/AppLifecycleCoordinator:63".
    std::string location{};
    std::string message{};
    /// The whole line.
    std::string raw{};

    bool operator==(const LogEntry&) const = default;
};

/// Takes a line apart, with or without the newline that ends it. A line in another form than the
/// log is written in becomes the message of an entry of the level `raw`. A timestamp that cannot be
/// read is absent; an unknown level becomes `raw`, and the rest of such an entry stands.
LogEntry parseLogLine(std::string_view line, std::string id);

} // namespace brindlex
