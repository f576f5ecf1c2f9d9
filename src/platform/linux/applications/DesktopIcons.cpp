#include "platform/linux/applications/DesktopIcons.h"

#include <algorithm>
#include <array>
#include <system_error>

namespace brindlex {
namespace {

constexpr std::array folders{"icons/hicolor/512x512/apps", "icons/hicolor/256x256/apps",
    "icons/hicolor/192x192/apps", "icons/hicolor/128x128/apps", "icons/hicolor/scalable/apps",
    "icons/hicolor/96x96/apps", "icons/hicolor/64x64/apps", "icons/hicolor/48x48/apps",
    "icons/hicolor/32x32/apps", "pixmaps"};
constexpr std::array suffixes{".png", ".svg", ".xpm", ""};

/// Where themes other than "hicolor" keep icons of applications and of programs without one: some
/// sort them by size first, some by kind.
constexpr std::array themeFolders{"128x128/apps", "apps/128", "96x96/apps", "apps/96",
    "scalable/apps", "apps/scalable", "64x64/apps", "apps/64", "48x48/apps", "apps/48",
    "32x32/apps", "apps/32", "scalable/mimetypes", "mimetypes/scalable", "64x64/mimetypes",
    "mimetypes/64", "48x48/mimetypes", "mimetypes/48", "32x32/mimetypes", "mimetypes/32"};

bool isFile(const std::filesystem::path& path)
{
    std::error_code unknown;
    return std::filesystem::is_regular_file(path, unknown);
}

/// The folders of all themes, those of the first data folder first, in the order of their names.
std::vector<std::filesystem::path> themes(const std::vector<std::filesystem::path>& dataFolders)
{
    std::vector<std::filesystem::path> found;
    for (const auto& dataFolder : dataFolders) {
        const auto begin = static_cast<std::ptrdiff_t>(found.size());
        std::error_code missing;
        std::filesystem::directory_iterator entry(dataFolder / "icons", missing);
        for (; !missing && entry != std::filesystem::directory_iterator(); entry.increment(missing))
            found.push_back(entry->path());
        std::sort(found.begin() + begin, found.end());
    }
    return found;
}

} // namespace

std::optional<std::filesystem::path> iconFile(
    const std::string& icon, const std::vector<std::filesystem::path>& dataFolders)
{
    if (icon.starts_with('/'))
        return isFile(icon) ? std::optional<std::filesystem::path>(icon) : std::nullopt;
    if (icon.empty() || icon.find('/') != icon.npos)
        return {};
    for (const auto* folder : folders)
        for (const auto& dataFolder : dataFolders)
            for (const auto* suffix : suffixes)
                if (const auto file = dataFolder / folder / (icon + suffix); isFile(file))
                    return file;
    return {};
}

std::optional<std::filesystem::path> themeIconFile(
    const std::string& icon, const std::vector<std::filesystem::path>& dataFolders)
{
    if (icon.empty() || icon.find('/') != icon.npos)
        return {};
    for (const auto& theme : themes(dataFolders))
        for (const auto* folder : themeFolders)
            for (const auto* suffix : {".png", ".svg"})
                if (const auto file = theme / folder / (icon + suffix); isFile(file))
                    return file;
    return {};
}

} // namespace brindlex
