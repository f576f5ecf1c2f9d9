#include "support/clipboard/ClipboardRecords.h"

#include <utility>

namespace brindlex {
namespace {

ClipboardItem newItem(ClipboardItemKind kind, Seconds createdAt)
{
    return {.id = Uuid::random(), .kind = kind, .createdAt = clipboardDay + createdAt};
}

Date randomDate(std::mt19937& random)
{
    return clipboardDay + static_cast<Seconds>(random() % 4) * 0.5;
}

} // namespace

ClipboardItem textItem(const std::string& text, Seconds createdAt)
{
    auto item = newItem(ClipboardItemKind::text, createdAt);
    item.fingerprint = "text:" + text;
    item.text = text;
    return item;
}

ClipboardItem imageItem(Seconds createdAt)
{
    auto item = newItem(ClipboardItemKind::image, createdAt);
    item.fingerprint = "image:" + item.id.text();
    item.imageBlobName = item.id.text() + ".png";
    return item;
}

ClipboardItem fileItem(const std::vector<std::string>& paths, Seconds createdAt)
{
    auto item = newItem(ClipboardItemKind::file, createdAt);
    item.fingerprint = "file:";
    for (const auto& path : paths)
        item.fingerprint += path + "\n";
    item.fileURLStrings = paths;
    return item;
}

ClipboardItem pinned(ClipboardItem item, Seconds pinnedAt)
{
    item.pinnedAt = clipboardDay + pinnedAt;
    return item;
}

ClipboardItem randomItem(std::mt19937& random)
{
    ClipboardItem item;
    // Of the places where texts of identifiers differ, each comes first in some pair.
    item.id.bytes[random() % 16] = static_cast<std::uint8_t>(random() % 3 * 0x5A);
    item.createdAt = randomDate(random);
    if (random() % 3 == 0)
        item.pinnedAt = randomDate(random);
    item.text = std::to_string(random());
    item.fingerprint = "text:" + *item.text;
    return item;
}

ClipboardItems randomItems(std::mt19937& random, std::size_t count)
{
    ClipboardItems items;
    for (std::size_t number = 0; number < count; ++number)
        items.push_back(shared(randomItem(random)));
    return items;
}

SharedClipboardItem shared(ClipboardItem item)
{
    return std::make_shared<const ClipboardItem>(std::move(item));
}

std::vector<ClipboardItem> recordsOf(const ClipboardItems& items)
{
    std::vector<ClipboardItem> records;
    for (const auto& item : items)
        records.push_back(*item);
    return records;
}

std::vector<std::string> textsOf(const ClipboardItems& items)
{
    std::vector<std::string> texts;
    for (const auto& item : items)
        texts.push_back(item->text.value_or(item->fingerprint));
    return texts;
}

} // namespace brindlex
