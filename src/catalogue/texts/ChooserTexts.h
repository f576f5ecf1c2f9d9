#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The chooser of installed applications.
inline constexpr auto chooserTexts = std::to_array<CatalogueRow>({
    {"chooser.choose", "Choose"},
    {"chooser.empty", "No application has this name."},
    {"chooser.pickWindow", "Pick a Window"},
    {"chooser.pickWindow.help", "Click a window whose application is not in the list"},
    {"chooser.running", "Running"},
    {"chooser.search", "Search applications"},
    {"chooser.title", "Choose an Application"},
});

} // namespace brindlex
