#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace brindlex {

/// Notifies, on the main thread, when a file of a folder was written, moved, removed or made
/// accessible, whichever process did it.
///
/// The handler gets the file's name, or an empty one when there were too many events or the folder
/// itself has gone. A folder that cannot be watched notifies of nothing. Main thread only.
class FolderWatcher {
public:
    using Handler = std::function<void(const std::string& name)>;

    FolderWatcher(const std::filesystem::path& folder, Handler handler);
    ~FolderWatcher();
    FolderWatcher(const FolderWatcher&) = delete;
    FolderWatcher& operator=(const FolderWatcher&) = delete;

    /// Whether the folder is there to be watched.
    bool isWatching() const;

private:
    class Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace brindlex
