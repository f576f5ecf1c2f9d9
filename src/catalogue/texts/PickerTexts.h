#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// What the picker of the clipboard history and its previews say of an item.
inline constexpr auto pickerTexts = std::to_array<CatalogueRow>({
    {"picker.entriesFormat", "Entries: %lld"},
    {"picker.filesFormat", "%@ and %lld more"},
    {"picker.pinned", "Pinned"},
});

} // namespace brindlex
