#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// Words that several screens use.
inline constexpr auto sharedTexts = std::to_array<CatalogueRow>({
    {"shared.cancel", "Cancel"},
    {"shared.empty", "Empty"},
    {"shared.save", "Save"},
});

} // namespace brindlex
