#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace brindlex {

/// How many bytes the files of a history have: its index, and those in its folder of blobs. What is
/// missing has none; nothing when the folder cannot be read. Links are not followed. Waits for the
/// disk; callable from any thread.
std::optional<std::uintmax_t> clipboardHistoryBytes(
    const std::filesystem::path& index, const std::filesystem::path& blobs);

} // namespace brindlex
