#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// Why an application got its input source.
inline constexpr auto whyTexts = std::to_array<CatalogueRow>({
    {"why.learnedFormat", "Learned from %lld changes by hand, last used %@"},
    {"why.manualRuleFormat", "This rule, last used %@"},
    {"why.notUsedYet", "Not used yet"},
    {"why.overriddenFormat", "Changed by hand %@; holds until another place decides"},
    {"why.title", "Why this source?"},
    {"why.websiteRuleFormat", "The rule for %@, last used %@"},
});

} // namespace brindlex
