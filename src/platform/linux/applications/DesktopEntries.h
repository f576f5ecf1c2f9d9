#pragma once

#include "platform/linux/applications/DesktopEntry.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The desktop entries of the applications that are installed.
///
/// They are read at the first question and kept. An entry hides those with its identifier in the
/// folders after its own, also when it is hidden or broken itself. One thread only.
class DesktopEntries {
public:
    /// The folders with applications' data, in order of precedence; their subfolders "applications"
    /// hold the entries.
    DesktopEntries(
        std::vector<std::filesystem::path> dataFolders, std::vector<std::string> languages);

    /// Those that the environment of the process names.
    static DesktopEntries ofUser();

    const std::vector<DesktopEntry>& all();

    /// Reads all of them anew if a folder has changed since they were read; whether it did.
    bool refresh();

    /// The identifier of an entry with this path: the path below "applications" with "-" for "/"
    /// and without the suffix, else the file's name without it.
    std::string identifierOf(const std::filesystem::path& path) const;

    /// Reads one entry from any place.
    std::optional<DesktopEntry> read(const std::filesystem::path& path) const;

    const std::vector<std::filesystem::path>& dataFolders() const { return dataFolders_; }

private:
    /// A folder that was looked into, or for, and its state then.
    struct Folder {
        std::filesystem::path path{};
        std::optional<std::filesystem::file_time_type> changed{};
    };
    class Reading;

    std::vector<std::filesystem::path> dataFolders_;
    std::vector<std::string> languages_;
    std::vector<DesktopEntry> entries_;
    std::vector<Folder> folders_;
    bool isRead_ = false;
};

} // namespace brindlex
