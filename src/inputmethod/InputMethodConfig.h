#pragma once

#include "foundation/JsonForm.h"
#include "inputmethod/DomainInputMethodRule.h"
#include "inputmethod/InputMethodRule.h"

#include <vector>

namespace brindlex {

/// What the user has set up by hand for the switching of input sources.
///
/// The screens keep each application and each domain to one rule; a stored list with repetitions is
/// taken as it is, and the first rule that matches wins.
struct InputMethodConfig {
    /// Automatic switching as a whole.
    bool enabled = true;
    /// In the user's order.
    std::vector<InputMethodRule> rules{};
    /// Website rules, and the polling of browsers that they need.
    bool domainRulesEnabled = false;
    /// In the user's order.
    std::vector<DomainInputMethodRule> domainRules{};
    /// Whether an automatic switch shows the overlay.
    bool showHUD = true;

    bool operator==(const InputMethodConfig&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            orDefault("enabled", &InputMethodConfig::enabled),
            orDefault("rules", &InputMethodConfig::rules),
            orDefault("domainRulesEnabled", &InputMethodConfig::domainRulesEnabled),
            orDefault("domainRules", &InputMethodConfig::domainRules),
            orDefault("showHUD", &InputMethodConfig::showHUD),
        };
    }
};

} // namespace brindlex
