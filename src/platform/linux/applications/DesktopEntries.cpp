#include "platform/linux/applications/DesktopEntries.h"

#include "foundation/Text.h"
#include "platform/linux/applications/DesktopFolders.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <sys/stat.h>
#include <utility>

namespace brindlex {
namespace {

constexpr std::string_view suffix = ".desktop";
/// Far beyond what anybody installs: a bound for folders made to be bottomless.
constexpr int depthLimit = 8;
constexpr std::size_t fileLimit = 20'000;

std::optional<std::filesystem::file_time_type> changeOf(const std::filesystem::path& folder)
{
    std::error_code missing;
    const auto time = std::filesystem::last_write_time(folder, missing);
    if (missing)
        return {};
    return time;
}

bool isBelow(const std::filesystem::path& path, const std::filesystem::path& folder)
{
    const auto relative = path.lexically_relative(folder);
    return !relative.empty() && *relative.begin() != "..";
}

} // namespace

/// One reading of all folders.
class DesktopEntries::Reading {
public:
    explicit Reading(DesktopEntries& entries) : entries_(entries) { }

    void readFolder(const std::filesystem::path& folder, const std::string& prefix, int depth)
    {
        struct stat status = {};
        if (depth > depthLimit
            || (::stat(folder.c_str(), &status) == 0
                && !visited_.emplace(status.st_dev, status.st_ino).second))
            return;
        entries_.folders_.push_back({folder, changeOf(folder)});

        std::vector<std::filesystem::path> files;
        std::error_code problem;
        for (std::filesystem::directory_iterator item(folder, problem), end;
             !problem && item != end && fileCount_ < fileLimit; item.increment(problem)) {
            std::error_code unknown;
            if (item->is_directory(unknown))
                folders(item->path(), prefix, depth);
            else if (item->path().native().ends_with(suffix) && ++fileCount_)
                files.push_back(item->path());
        }
        std::sort(files.begin(), files.end());
        for (const auto& file : files)
            readFile(file, wellFormed(prefix + file.stem().string()));
    }

private:
    void folders(const std::filesystem::path& folder, const std::string& prefix, int depth)
    {
        readFolder(folder, prefix + folder.filename().string() + "-", depth + 1);
    }

    void readFile(const std::filesystem::path& file, std::string identifier)
    {
        if (!identifiers_.insert(identifier).second)
            return;
        auto entry = readDesktopEntry(file, entries_.languages_);
        if (!entry)
            return;
        entry->identifier = std::move(identifier);
        entries_.entries_.push_back(std::move(*entry));
    }

    DesktopEntries& entries_;
    std::set<std::pair<dev_t, ino_t>> visited_;
    std::set<std::string> identifiers_;
    std::size_t fileCount_ = 0;
};

DesktopEntries::DesktopEntries(
    std::vector<std::filesystem::path> dataFolders, std::vector<std::string> languages)
    : dataFolders_(std::move(dataFolders)), languages_(std::move(languages))
{
}

DesktopEntries DesktopEntries::ofUser() { return {brindlex::dataFolders(), entryLanguages()}; }

const std::vector<DesktopEntry>& DesktopEntries::all()
{
    if (!std::exchange(isRead_, true)) {
        entries_.clear();
        folders_.clear();
        Reading reading(*this);
        for (const auto& folder : dataFolders_)
            reading.readFolder(folder / "applications", "", 0);
    }
    return entries_;
}

bool DesktopEntries::refresh()
{
    const bool isCurrent = isRead_
        && std::all_of(folders_.begin(), folders_.end(),
            [](const Folder& folder) { return changeOf(folder.path) == folder.changed; });
    if (isCurrent)
        return false;
    isRead_ = false;
    all();
    return true;
}

std::string DesktopEntries::identifierOf(const std::filesystem::path& path) const
{
    const auto normal = path.lexically_normal();
    for (const auto& dataFolder : dataFolders_) {
        const auto folder = dataFolder / "applications";
        if (!isBelow(normal, folder))
            continue;
        auto identifier = normal.lexically_relative(folder).replace_extension().string();
        std::replace(identifier.begin(), identifier.end(), '/', '-');
        return wellFormed(identifier);
    }
    return wellFormed(normal.stem().string());
}

std::optional<DesktopEntry> DesktopEntries::read(const std::filesystem::path& path) const
{
    auto entry = readDesktopEntry(path, languages_);
    if (entry)
        entry->identifier = identifierOf(path);
    return entry;
}

} // namespace brindlex
