#include "clipboard/ClipboardReader.h"

#include "clipboard/ClipboardHistoryStore.h"
#include "foundation/FileReading.h"

#include <limits>
#include <utility>

namespace brindlex {
namespace {

PasteboardContent::Any textOf(const ClipboardItem& item)
{
    if (!item.text)
        return PasteboardContent::Nothing{};
    return PasteboardContent::Text{*item.text};
}

PasteboardContent::Any filesOf(const ClipboardItem& item)
{
    if (!item.fileURLStrings || item.fileURLStrings->empty())
        return PasteboardContent::Nothing{};
    return PasteboardContent::Files{*item.fileURLStrings};
}

PasteboardContent::Any pictureOf(const ClipboardItem& item, const ClipboardHistoryStore& store)
{
    const auto blob = store.blobURL(item);
    if (!blob)
        return PasteboardContent::Nothing{};
    const auto bytes = readFile(*blob, std::numeric_limits<std::size_t>::max());
    if (!bytes || !*bytes)
        return PasteboardContent::Nothing{};
    return PasteboardContent::Data{std::string(pasteboardType::png), **bytes};
}

PasteboardContent::Any contentOf(const ClipboardItem& item, const ClipboardHistoryStore& store)
{
    switch (item.kind) {
    case ClipboardItemKind::text:
        return textOf(item);
    case ClipboardItemKind::file:
        return filesOf(item);
    case ClipboardItemKind::image:
        break;
    }
    return pictureOf(item, store);
}

} // namespace

std::shared_ptr<const std::string> ClipboardReader::imagePNGData(
    const Pasteboard& pasteboard, ImageConverting& images)
{
    if (auto png = pasteboard.data(pasteboardType::png))
        return png;
    for (const auto type : {pasteboardType::tiff, pasteboardType::jpeg}) {
        const auto picture = pasteboard.data(type);
        if (!picture)
            continue;
        const auto png = images.pngOf(*picture);
        if (png)
            return std::make_shared<const std::string>(*png);
        if (png.error() == ImageProblem::notWritten)
            return {};
    }
    return {};
}

void ClipboardReader::write(
    const ClipboardItem& item, const ClipboardHistoryStore& store, Pasteboard& pasteboard)
{
    pasteboard.write(contentOf(item, store));
}

} // namespace brindlex
