#pragma once

#include "platform/linux/files/FolderWatcher.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// Reads a small file of somebody else's, at once and again whenever it changes, however it is
/// replaced, also when it or its folder comes later.
///
/// A folder that comes later is noticed if the one above it is there. A file that is missing,
/// larger than `limit` bytes or not to be read counts as an empty one. Main thread only.
class FollowedFile {
public:
    using Handler = std::function<void(const std::string& content)>;

    /// The handler is called with the content before this returns.
    FollowedFile(std::filesystem::path file, std::size_t limit, Handler handler);

private:
    void watch();
    void read();

    const std::filesystem::path file_;
    const std::size_t limit_;
    const Handler handler_;
    std::optional<FolderWatcher> folder_;
    /// While there is no folder, what it will be made in.
    std::optional<FolderWatcher> folderAbove_;
};

} // namespace brindlex
