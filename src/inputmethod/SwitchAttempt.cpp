#include "inputmethod/SwitchAttempt.h"

#include "inputmethod/SwitchDecision.h"
#include "inputmethod/TruncatedHUDLabel.h"
#include "platform/InputSourceIdentifiers.h"

namespace brindlex {
namespace {

constexpr Seconds echoTime = 1.0;

void noteVisit(
    InputMethodAutoSwitchOverrideState& memory, const InputMethodAutoSwitchContext::Any& context)
{
    if (memory.lastVisitedContext != context)
        memory = {context, std::nullopt, std::nullopt};
}

/// Whether the program has moved this place to the decided source before: as another one is
/// selected now, the user has changed it since.
bool isOverridden(const InputMethodAutoSwitchOverrideState& memory,
    const InputMethodAutoSwitchContext::Any& context, const InputMethodSwitchDecision& decision,
    const std::optional<std::string>& current)
{
    return memory.lastAutomaticContext == context
        && memory.lastAutomaticInputSourceID == decision.inputSourceID && current
        && !isSameSource(*current, decision.inputSourceID);
}

SwitchEffect::LogWarning failureWarning(const InputMethodSwitchDecision& decision)
{
    const auto place = decision.matchedDomainSuffix.value_or(decision.bundleID.value_or("unknown"));
    return {"Failed to select " + decision.inputSourceID + " for " + place, "input-method"};
}

SwitchEffect::FireHUD labelOf(
    const InputMethodSwitchDecision& decision, const SwitchEnvironment& environment)
{
    return {truncatedHUDLabel(
        environment.currentInputSourceLocalizedName().value_or(decision.inputSourceID))};
}

} // namespace

std::optional<SwitchEffect::Any> attemptSwitch(const SwitchPlace& place, SwitchState& state,
    const SmartInputMethodConfig& smartConfig, const InputMethodConfig& config,
    const SwitchEnvironment& environment)
{
    const auto current = environment.currentInputSourceID();
    const auto decision = resolveSwitchDecision(place.bundleID, place.host, std::nullopt, config,
        &smartConfig, place.allowsAppRules, environment.systemTime());
    if (!decision)
        return {};
    if (current && isSameSource(decision->inputSourceID, *current)) {
        environment.noteAgreement(*decision);
        return {};
    }
    const auto context = autoSwitchContext(*decision);
    noteVisit(state.override, context);
    if (isOverridden(state.override, context, *decision, current))
        return {};
    // The notification of the change may arrive at any time from the selection on.
    state.ignoreWindow = {decision->inputSourceID, environment.now() + echoTime};
    if (!environment.selectInputSource(decision->inputSourceID)) {
        state.ignoreWindow = {};
        return failureWarning(*decision);
    }
    state.override = {context, context, decision->inputSourceID};
    state.standing.isChosenSinceSwitch = false;
    environment.noteSwitch(*decision);
    if (!config.showHUD)
        return {};
    return labelOf(*decision, environment);
}

} // namespace brindlex
