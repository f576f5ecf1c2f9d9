#include "inputmethod/SwitchExplanation.h"

namespace brindlex {

SwitchExplanation::Any explanation(const std::optional<SwitchReason>& reason)
{
    if (!reason)
        return SwitchExplanation::NotUsedYet{};
    if (reason->overriddenAt)
        return SwitchExplanation::Overridden{*reason->overriddenAt};
    switch (reason->decision.source) {
    case InputMethodSwitchDecisionSource::websiteRule:
        return SwitchExplanation::WebsiteRule{
            reason->decision.matchedDomainSuffix.value_or(""), reason->usedAt};
    case InputMethodSwitchDecisionSource::manualAppRule:
        return SwitchExplanation::ManualRule{reason->usedAt};
    case InputMethodSwitchDecisionSource::smartAppRule:
        return SwitchExplanation::LearnedRule{reason->changes, reason->usedAt};
    }
    return SwitchExplanation::NotUsedYet{};
}

} // namespace brindlex
