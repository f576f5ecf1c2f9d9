#pragma once

#include "foundation/Cases.h"
#include "foundation/Date.h"
#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"

#include <optional>
#include <string>

namespace brindlex {

/// The kind of rule that decided.
enum class InputMethodSwitchDecisionSource { websiteRule, manualAppRule, smartAppRule };

/// Which input source is to be selected, and why.
struct InputMethodSwitchDecision {
    /// The application asked about, whatever rule decided.
    std::optional<std::string> bundleID{};
    /// The domain of the website rule that decided; absent when another kind of rule did.
    std::optional<std::string> matchedDomainSuffix{};
    std::string inputSourceID{};
    InputMethodSwitchDecisionSource source = InputMethodSwitchDecisionSource::websiteRule;

    bool operator==(const InputMethodSwitchDecision&) const = default;
};

/// The place for which an automatic switch applies: an application, or all pages under a domain.
struct InputMethodAutoSwitchContext {
    struct App {
        std::string bundleID{};
        bool operator==(const App&) const = default;
    };
    struct Domain {
        std::string domainSuffix{};
        bool operator==(const Domain&) const = default;
    };
    using Any = Cases<App, Domain>;
};

/// Returns which input source the user's place asks for. Nothing when no rule speaks, and when the
/// winning rule asks for the source that is selected already.
///
///     priority               first               second              third
///     afterManualRules       website             manual application  smart application
///     beforeManualAppRules   website             smart application   manual application
///     highest                smart application   website             manual application
///
/// Without `allowsAppRules` only website rules may decide. Without `smartConfig` (null) no learned
/// rule speaks. An unknown current source never equals the chosen one. `now` is the system's time,
/// by which learned data ages.
std::optional<InputMethodSwitchDecision> resolveSwitchDecision(
    const std::optional<std::string>& bundleID, const std::optional<std::string>& host,
    const std::optional<std::string>& currentInputSourceID, const InputMethodConfig& config,
    const SmartInputMethodConfig* smartConfig, bool allowsAppRules, Date now);

/// What was decided, where and by which rule, in one line for people.
std::string description(const InputMethodSwitchDecision& decision);

/// The place that a decision is for.
InputMethodAutoSwitchContext::Any autoSwitchContext(const InputMethodSwitchDecision& decision);

/// The place that `resolveSwitchDecision` decides for; nothing when it decides nothing.
std::optional<InputMethodAutoSwitchContext::Any> resolveAutoSwitchContext(
    const std::optional<std::string>& bundleID, const std::optional<std::string>& host,
    const std::optional<std::string>& currentInputSourceID, const InputMethodConfig& config,
    const SmartInputMethodConfig* smartConfig, bool allowsAppRules, Date now);

/// The website rule with the longest suffix, in characters, that the host is or lies under; of
/// equal ones the first. Nothing while website rules are off.
std::optional<DomainInputMethodRule> matchingDomainRule(
    const std::optional<std::string>& host, const InputMethodConfig& config);

/// The first rule for the application.
std::optional<InputMethodRule> matchingAppRule(
    const std::string& bundleID, const InputMethodConfig& config);

} // namespace brindlex
