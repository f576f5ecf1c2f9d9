#include "clipboard/ClipboardCategory.h"

#include "foundation/Text.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace brindlex {
namespace {

constexpr std::array<std::string_view, 17> imageExtensions{"apng", "avif", "bmp", "gif", "heic",
    "heif", "ico", "jpeg", "jpg", "jp2", "png", "psd", "raw", "svg", "tif", "tiff", "webp"};

bool areAllImages(const std::vector<std::string>& paths)
{
    return std::all_of(paths.begin(), paths.end(), isImagePath);
}

} // namespace

bool isImagePath(std::string_view path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    const auto suffix = lowercased(std::filesystem::path(path).extension().string());
    return !suffix.empty()
        && std::find(
               imageExtensions.begin(), imageExtensions.end(), std::string_view(suffix).substr(1))
        != imageExtensions.end();
}

bool isInCategory(const ClipboardItem& item, ClipboardCategory category)
{
    const bool isOfFiles = item.kind == ClipboardItemKind::file && item.fileURLStrings
        && !item.fileURLStrings->empty();
    switch (category) {
    case ClipboardCategory::text:
        return item.kind == ClipboardItemKind::text;
    case ClipboardCategory::image:
        return item.kind == ClipboardItemKind::image
            || (isOfFiles && areAllImages(*item.fileURLStrings));
    case ClipboardCategory::file:
        return isOfFiles && !areAllImages(*item.fileURLStrings);
    case ClipboardCategory::all:
        break;
    }
    return true;
}

} // namespace brindlex
