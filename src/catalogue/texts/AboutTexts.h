#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// The screen about the program.
inline constexpr auto aboutTexts = std::to_array<CatalogueRow>({
    {"about.support.title", "Contact Support"},
    {"about.versionLineFormat", "Version %@"},
    {"about.website.open", "Visit Website"},
    {"about.website.privacy", "Privacy Policy"},
    {"about.website.terms", "Terms of Service"},
    {"about.website.title", "Official Website"},
});

} // namespace brindlex
