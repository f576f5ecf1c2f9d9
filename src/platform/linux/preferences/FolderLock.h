#pragma once

#include "foundation/FileHandle.h"

#include <filesystem>

namespace brindlex {

/// Keeps other processes of this program from writing to a folder at the same time, as long as it
/// exists.
///
/// Waits no longer than a second for another holder and then goes on without: a process that was
/// stopped must not stop all others. A file system without locks goes without as well.
class FolderLock {
public:
    explicit FolderLock(const std::filesystem::path& folder);

    bool isHeld() const { return isHeld_; }

private:
    FileHandle folder_;
    bool isHeld_ = false;
};

} // namespace brindlex
