#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

namespace brindlex {

/// A log file of this many bytes (50 MiB) is rotated before the next line.
inline constexpr std::uintmax_t logFileLimit = 52'428'800;

/// How many rotated files stand beside the current one; ".1" is the newest.
inline constexpr int rotatedLogFiles = 5;

/// Appends the lines, each with its newline, in order; makes the file where it is missing. Before a
/// line that finds the file at its limit the file is rotated.
///
/// The file is opened once for all the lines that go into it and closed at the end, so that it may
/// be read, emptied, moved or removed at any time. It is private to the user. A failure is
/// swallowed, and the lines that it hit are lost, whole ones.
void appendToLogFile(const std::filesystem::path& file, std::span<const std::string_view> lines);

/// Makes room for a new current file if this one is at its limit: removes ".5", moves each other
/// number one up and the file itself to ".1". A move that fails, also because a file stands in the
/// way, is left out.
void rotateLogFileIfDue(const std::filesystem::path& file);

} // namespace brindlex
