#pragma once

#include "inputmethod/DomainInputMethodRule.h"

#include <span>
#include <string_view>
#include <vector>

namespace brindlex {

/// A website that rules are often made for.
struct DomainRecommendation {
    std::string_view displayName{};
    std::string_view domainSuffix{};

    bool operator==(const DomainRecommendation&) const = default;
};

/// The popular websites, in their order.
std::span<const DomainRecommendation> domainRecommendations();

/// The websites to suggest to a user who types this, in their order; none before the second
/// character. Those that have a rule are left out. A text that is a domain suggests that domain,
/// those below it and those above it; any other text suggests the domains that contain it.
std::vector<DomainRecommendation> suggestedDomains(
    std::string_view typed, const std::vector<DomainInputMethodRule>& rules);

} // namespace brindlex
