#pragma once

#include "foundation/FileProblem.h"
#include "foundation/Result.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace brindlex {

/// What stands in a log file behind an offset.
struct LogTail {
    /// The newest lines without their newlines, the oldest of them first; empty lines are left out.
    std::vector<std::string> lines{};
    /// How many lines there are, those included that are too old for `lines`.
    std::size_t lineCount = 0;
    /// Where the last line that has its newline ends.
    std::uint64_t end = 0;

    bool operator==(const LogTail&) const = default;
};

/// Reads the lines behind the offset, as far as the file reaches at this moment, and keeps the
/// newest `most` of them. A last line without its newline is still being written: it is left for
/// the next time. Where any of the bytes before that is not UTF-8, there are no lines, and `end` is
/// behind all of them. A file shorter than the offset has nothing behind it.
Result<LogTail, FileProblem> readLogTail(
    const std::filesystem::path& file, std::uint64_t offset, std::size_t most);

} // namespace brindlex
