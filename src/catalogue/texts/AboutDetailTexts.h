#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// What the screen about the program adds.
inline constexpr auto aboutDetailTexts = std::to_array<CatalogueRow>({
    {"aboutDetail.commitFormat", "Commit %@"},
    {"aboutDetail.libraries", "Libraries"},
    {"aboutDetail.licenceFormat", "%@, under %@"},
});

} // namespace brindlex
