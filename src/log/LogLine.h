#pragma once

#include "log/Log.h"

#include <cstddef>
#include <string>

namespace brindlex {

/// Where the parts of a line stand in the text that it was appended to.
struct LogLineParts {
    std::size_t begin = 0;
    std::size_t categoryBegin = 0;
    std::size_t categoryEnd = 0;
    std::size_t messageBegin = 0;
    /// Where the newline stands that ends the line.
    std::size_t messageEnd = 0;

    bool operator==(const LogLineParts&) const = default;
};

/// Appends the line that stands for a call in a log file, with its newline:
///
///     2026-11-16T02:16:25.123Z NOTICE [lifecycle] Brindlex/AppLifecycleCoordinator:63 — message
///
/// The message stands as it is, newlines included, but a log file is UTF-8: what is not, in the
/// message or the category, becomes U+FFFD, so that no line is lost to a stray byte.
LogLineParts appendLogLine(std::string& text, Date now, const LogCall& call);

} // namespace brindlex
