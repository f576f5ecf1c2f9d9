#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The tabs of the main window.
inline constexpr auto tabTexts = std::to_array<CatalogueRow>({
    {"tab.about", "About"},
    {"tab.clipboard", "Clipboard"},
    {"tab.dictation", "Dictation"},
    {"tab.finder", "Finder"},
    {"tab.general", "General"},
    {"tab.keyboard", "Keyboard"},
    {"tab.mouse", "Mouse"},
});

} // namespace brindlex
