#pragma once

#include "clipboard/ClipboardItems.h"

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// Items of the clipboard history in few words, for tests.

/// A text that was copied so many seconds after some day, from nowhere.
ClipboardItem textItem(const std::string& text, Seconds createdAt = 0);

/// A picture whose blob is named after the item.
ClipboardItem imageItem(Seconds createdAt = 0);

ClipboardItem fileItem(const std::vector<std::string>& paths, Seconds createdAt = 0);

/// The day.
inline constexpr Date clipboardDay{800'000'000};

/// The same item, pinned so many seconds after the day.
ClipboardItem pinned(ClipboardItem item, Seconds pinnedAt = 0);

/// An item as it may come from anywhere. Few dates and identifiers, so that many are equal in some
/// of them.
ClipboardItem randomItem(std::mt19937& random);

/// So many of them, in any order.
ClipboardItems randomItems(std::mt19937& random, std::size_t count);

SharedClipboardItem shared(ClipboardItem item);

/// Their records.
std::vector<ClipboardItem> recordsOf(const ClipboardItems& items);

/// Their texts, and the fingerprints of those that have none.
std::vector<std::string> textsOf(const ClipboardItems& items);

} // namespace brindlex
