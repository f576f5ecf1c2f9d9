#pragma once

#include <filesystem>

namespace brindlex {

/// Makes the folder and what is missing above it, for the user alone. What is there stays as it is.
/// Returns the first error, in the form of `errno`, that may be why there is still no folder
/// afterwards, or 0.
int makePrivateFolder(const std::filesystem::path& folder);

} // namespace brindlex
