#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The heads of the columns of the log.
inline constexpr auto logTableTexts = std::to_array<CatalogueRow>({
    {"logTable.category", "Category"},
    {"logTable.level", "Level"},
    {"logTable.location", "Place"},
    {"logTable.message", "Message"},
    {"logTable.time", "Time"},
});

} // namespace brindlex
