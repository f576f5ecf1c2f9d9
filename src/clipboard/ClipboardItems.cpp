#include "clipboard/ClipboardItems.h"

#include <algorithm>
#include <compare>
#include <utility>

namespace brindlex {
namespace {

/// Whether one date is later than the other; dates that are no numbers have their place as well.
std::weak_ordering laterFirst(Date one, Date other)
{
    return std::weak_order(other.secondsSinceReferenceDate, one.secondsSinceReferenceDate);
}

bool sharedStandsBefore(const SharedClipboardItem& one, const SharedClipboardItem& other)
{
    return standsBefore(*one, *other);
}

} // namespace

bool standsBefore(const ClipboardItem& one, const ClipboardItem& other)
{
    if (one.pinnedAt.has_value() != other.pinnedAt.has_value())
        return one.pinnedAt.has_value();
    if (one.pinnedAt)
        if (const auto order = laterFirst(*one.pinnedAt, *other.pinnedAt); order != 0)
            return order < 0;
    if (const auto order = laterFirst(one.createdAt, other.createdAt); order != 0)
        return order < 0;
    // As the texts, whose digits and letters are in the order of the bytes that they spell.
    return one.id < other.id;
}

void sortForDisplay(ClipboardItems& items)
{
    std::stable_sort(items.begin(), items.end(), sharedStandsBefore);
}

void insertInOrder(ClipboardItems& items, SharedClipboardItem item)
{
    const auto place = std::lower_bound(items.begin(), items.end(), item, sharedStandsBefore);
    items.insert(place, std::move(item));
}

void replaceInOrder(ClipboardItems& items, std::size_t index, SharedClipboardItem item)
{
    const auto before = items.begin() + static_cast<std::ptrdiff_t>(index);
    items.erase(before);
    // Among its equals it stays where it was.
    const auto [first, last]
        = std::equal_range(items.begin(), items.end(), item, sharedStandsBefore);
    const auto place = std::clamp(items.begin() + static_cast<std::ptrdiff_t>(index), first, last);
    items.insert(place, std::move(item));
}

} // namespace brindlex
