#pragma once

#include "clipboard/ClipboardItem.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace brindlex {

/// An item as lists share it. Nobody changes it: what an item becomes is another record.
using SharedClipboardItem = std::shared_ptr<const ClipboardItem>;

/// A list of items. To copy it copies no contents; it has no empty places.
using ClipboardItems = std::vector<SharedClipboardItem>;

/// Whether one item stands before the other in the history: pinned ones first, the one that was
/// pinned last leading; then the one that was copied last; then the one with the smaller identifier
/// as text. A strict weak order over all dates, also those that are no numbers.
bool standsBefore(const ClipboardItem& one, const ClipboardItem& other);

/// Brings the items into the order of the history. Those that are equal in it stay in theirs.
void sortForDisplay(ClipboardItems& items);

/// Does what `sortForDisplay` would after the item was put in front of the items, which are in
/// order.
void insertInOrder(ClipboardItems& items, SharedClipboardItem item);

/// Does what `sortForDisplay` would after the item has taken the place of the one at the index; all
/// others are in order.
void replaceInOrder(ClipboardItems& items, std::size_t index, SharedClipboardItem item);

} // namespace brindlex
