#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// What the settings of the clipboard history say beside their names.
inline constexpr auto clipboardTabTexts = std::to_array<CatalogueRow>({
    {"clipboardTab.autoPasteDescription", "When off, what you choose is only copied"},
    {"clipboardTab.clearDescription", "Deletes all items, pinned ones too"},
    {"clipboardTab.enableDescription", "Keep what you copy and paste it again later"},
    {"clipboardTab.folder", "Folder"},
    {"clipboardTab.history", "History"},
    {"clipboardTab.hotkeyNeedsFormat", "Hold %@, %@ or %@ as well"},
    {"clipboardTab.maxItemsDescription", "When you copy more, the oldest items go"},
    {"clipboardTab.openFolder", "Open Folder"},
    {"clipboardTab.savedItems", "Saved items"},
});

} // namespace brindlex
