#include "clipboard/ClipboardPreviews.h"

#include "clipboard/ClipboardCategory.h"
#include "clipboard/ClipboardHistoryStore.h"

#include <algorithm>
#include <system_error>

namespace brindlex {
namespace {

using Files = std::vector<std::filesystem::path>;

Files candidates(const ClipboardItem& item, const ClipboardHistoryStore& store)
{
    switch (item.kind) {
    case ClipboardItemKind::text:
        return {};
    case ClipboardItemKind::image:
        if (const auto blob = store.blobURL(item))
            return {*blob};
        return {};
    case ClipboardItemKind::file:
        break;
    }
    if (!item.fileURLStrings)
        return {};
    return {item.fileURLStrings->begin(), item.fileURLStrings->end()};
}

bool isMissing(const std::filesystem::path& file)
{
    std::error_code ignored;
    return !std::filesystem::exists(file, ignored);
}

} // namespace

Files previewFiles(const ClipboardItem& item, const ClipboardHistoryStore& store)
{
    auto files = candidates(item, store);
    std::erase_if(files, isMissing);
    return files;
}

std::optional<std::filesystem::path> firstPreviewableImage(const ClipboardItem& item,
    const ClipboardHistoryStore& store, const IsPictureType& isPictureType)
{
    const auto files = previewFiles(item, store);
    const auto isPicture = [&](const std::filesystem::path& file) {
        return item.kind == ClipboardItemKind::image || isImagePath(file.string())
            || isPictureType(file);
    };
    const auto found = std::find_if(files.begin(), files.end(), isPicture);
    if (found == files.end())
        return {};
    return *found;
}

} // namespace brindlex
