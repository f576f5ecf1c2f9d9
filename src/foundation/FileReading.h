#pragma once

#include "foundation/FileProblem.h"
#include "foundation/Result.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace brindlex {

/// The whole content of a regular file; nothing when there is no such file.
///
/// More than `limit` bytes are a problem, and so is a folder, a device or a pipe, which is never
/// waited for.
Result<std::optional<std::string>, FileProblem> readFile(
    const std::filesystem::path& file, std::size_t limit);

} // namespace brindlex
