#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace brindlex {

/// The content of a file that somebody else wrote. Nothing when it cannot be read, is larger than
/// the limit or is not a plain file; never waits, as opening a pipe would.
std::optional<std::string> readBoundedFile(const std::filesystem::path& file, std::size_t limit);

} // namespace brindlex
