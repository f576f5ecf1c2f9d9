#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The clipboard history and its picker.
inline constexpr auto clipboardTexts = std::to_array<CatalogueRow>({
    {"clipboard.autoPaste.title", "Paste into the previous app automatically"},
    {"clipboard.category.all", "All"},
    {"clipboard.category.file", "Files"},
    {"clipboard.category.image", "Images"},
    {"clipboard.category.text", "Text"},
    {"clipboard.clear.button", "Clear"},
    {"clipboard.clear.confirm", "Delete all clipboard history? This cannot be undone."},
    {"clipboard.clear.title", "Clear history"},
    {"clipboard.delete.item", "Delete"},
    {"clipboard.empty", "No items"},
    {"clipboard.enable.title", "Clipboard History"},
    {"clipboard.hint.close", "Close"},
    {"clipboard.hint.paste", "Paste"},
    {"clipboard.hint.preview", "Preview"},
    {"clipboard.hint.quick", "Quick paste"},
    {"clipboard.hotkey.title", "Open picker shortcut"},
    {"clipboard.item.image", "Image"},
    {"clipboard.maxItems.title", "Maximum items to keep"},
    {"clipboard.search.placeholder", "Search"},
});

} // namespace brindlex
