#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// What stands where nothing is yet.
inline constexpr auto placeholderTexts = std::to_array<CatalogueRow>({
    {"placeholder.comingSoon", "Placeholder — coming soon"},
});

} // namespace brindlex
