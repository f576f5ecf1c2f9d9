#pragma once

#include "foundation/FileProblem.h"
#include "foundation/Result.h"

#include <filesystem>
#include <string_view>

namespace brindlex {

/// Replaces the content of a file in one step.
///
/// Whoever reads the file, also after a crash or a loss of power, finds the old content or the new
/// one, never a part. On a failure the old file is left as it was. The replacement keeps the owner
/// and the permissions of the old file; a new file gets `permissions`, whatever the process's mask.
/// A symbolic link stays, and the file that it leads to is replaced. The folder has to exist. What
/// is not a regular file is not replaced.
///
/// The content is made in a temporary file beside it, ".<name>.tmp". One that a killed process left
/// behind is used up by the next replacement. Callable from any thread and process: of replacements
/// at the same time each is whole, and the last one stays. Waits for the disk.
Result<Done, FileProblem> replaceFile(const std::filesystem::path& file, std::string_view content,
    std::filesystem::perms permissions
    = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);

} // namespace brindlex
