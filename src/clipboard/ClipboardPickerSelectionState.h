#pragma once

#include "clipboard/ClipboardCategory.h"
#include "clipboard/ClipboardItems.h"
#include "foundation/Uuid.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace brindlex {

class ClipboardSearchTexts;

/// What the picker of the history shows, and which item of it is selected in each category.
///
/// A selected item that a list has no longer counts as none.
struct ClipboardPickerSelectionState {
    ClipboardCategory category = ClipboardCategory::all;
    std::string query{};
    std::map<ClipboardCategory, Uuid> selectedItemIDsByCategory{};

    bool operator==(const ClipboardPickerSelectionState&) const = default;

    /// The items of the category of which every word of the query passes, in their order. Case and
    /// diacritics do not matter; a word passes also when its characters are there with others
    /// between them.
    ClipboardItems filteredItems(const ClipboardItems& items, ClipboardSearchTexts& texts) const;

    /// The selected item of the visible list, else its first; nothing of an empty list.
    SharedClipboardItem selectedItem(const ClipboardItems& filtered) const;

    /// Selects the first item unless the selected one is visible.
    void selectFirstIfNeeded(const ClipboardItems& filtered);

    /// Moves the selection by so many items, not beyond either end.
    void move(std::int64_t delta, const ClipboardItems& filtered);

    /// Goes on, once an item was removed, with the one that has come to its place, or the last.
    void handleRemoval(
        Uuid id, const ClipboardItems& oldFiltered, const ClipboardItems& newFiltered);

private:
    std::optional<Uuid> storedID() const;
    void select(const ClipboardItem& item) { selectedItemIDsByCategory[category] = item.id; }
};

} // namespace brindlex
