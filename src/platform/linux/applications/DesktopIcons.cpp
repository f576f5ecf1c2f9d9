#include "platform/linux/applications/DesktopIcons.h"

#include <array>

namespace brindlex {
namespace {

constexpr std::array folders{"icons/hicolor/512x512/apps", "icons/hicolor/256x256/apps",
    "icons/hicolor/192x192/apps", "icons/hicolor/128x128/apps", "icons/hicolor/scalable/apps",
    "icons/hicolor/96x96/apps", "icons/hicolor/64x64/apps", "icons/hicolor/48x48/apps",
    "icons/hicolor/32x32/apps", "pixmaps"};
constexpr std::array suffixes{".png", ".svg", ".xpm", ""};

bool isFile(const std::filesystem::path& path)
{
    std::error_code unknown;
    return std::filesystem::is_regular_file(path, unknown);
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

} // namespace brindlex
