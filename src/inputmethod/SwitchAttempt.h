#pragma once

#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"
#include "inputmethod/SwitchEffect.h"
#include "inputmethod/SwitchEnvironment.h"
#include "inputmethod/SwitchState.h"

#include <optional>
#include <string>

namespace brindlex {

/// Where the user is, as far as it is known.
struct SwitchPlace {
    std::optional<std::string> bundleID{};
    /// The normalised domain of the page, in a browser.
    std::optional<std::string> host{};
    /// Whether rules for applications may decide; otherwise only those for websites.
    bool allowsAppRules = true;
};

/// Selects the source that the rules want for the place, through the environment, and returns what
/// is to be shown or logged of it, if anything.
///
/// Does nothing where the rules want nothing, or the source that is selected, and where the user
/// has overridden them: the place has had that source from the program before, and another one is
/// selected now. Notes in `state` which place this is, what was selected for it, and which echo of
/// that is expected.
std::optional<SwitchEffect::Any> attemptSwitch(const SwitchPlace& place, SwitchState& state,
    const SmartInputMethodConfig& smartConfig, const InputMethodConfig& config,
    const SwitchEnvironment& environment);

} // namespace brindlex
