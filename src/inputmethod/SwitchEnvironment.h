#pragma once

#include "applications/AppIdentifier.h"
#include "foundation/Date.h"
#include "inputmethod/SwitchDecision.h"

#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// What the switching of input sources asks of the computer. All functions must be set.
struct SwitchEnvironment {
    /// The time by which the echo of an own selection is awaited.
    std::function<Date()> now{};
    std::function<std::optional<std::string>()> currentInputSourceID{};
    std::function<std::optional<std::string>()> currentInputSourceLocalizedName{};
    /// True on success.
    std::function<bool(const std::string& inputSourceID)> selectInputSource{};
    /// False for an absent identifier.
    std::function<bool(const std::optional<std::string>& bundleID)> isSupportedBrowser{};
    std::function<std::optional<std::string>()> currentFrontmostBundleID{};
    /// Nothing exactly when the identifier is absent.
    std::function<std::optional<AppIdentifier>(const std::optional<std::string>& bundleID)>
        appIdentifier{};
    /// The normalised domain of the page that the browser shows.
    std::function<std::optional<std::string>(const std::optional<std::string>& bundleID)>
        currentBrowserHost{};
    /// The time by which learned data is dated and ages: the system clock, whatever `now` is.
    std::function<Date()> systemTime{};
    /// Why selections are undone here, and what helps; empty when nothing is known.
    std::function<std::string()> whyUndone{};
    /// Takes note of a switch that was made.
    std::function<void(const InputMethodSwitchDecision& decision)> noteSwitch{};
    /// Takes note of a decision for the source that is selected already.
    std::function<void(const InputMethodSwitchDecision& decision)> noteAgreement{};
};

} // namespace brindlex
