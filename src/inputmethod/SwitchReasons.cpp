#include "inputmethod/SwitchReasons.h"

#include "platform/InputSourceIdentifiers.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace brindlex {
namespace {

std::size_t changesBehind(
    const InputMethodSwitchDecision& decision, const SmartInputMethodConfig& smartConfig, Date now)
{
    if (decision.source != InputMethodSwitchDecisionSource::smartAppRule)
        return 0;
    const auto stats = smartConfig.activeSmartStats(decision.bundleID, now);
    return stats ? stats->samples.size() : 0;
}

/// Whether the last switch would be made again but for the user's choice.
bool isOverridden(const SwitchState& state)
{
    const auto& memory = state.override;
    return memory.lastAutomaticContext && memory.lastAutomaticInputSourceID
        && state.standing.isChosenSinceSwitch && state.lastInputSourceID
        && !isSameSource(*state.lastInputSourceID, *memory.lastAutomaticInputSourceID);
}

void dropOldest(SwitchReasons::ByApplication& reasons)
{
    reasons.erase(
        std::min_element(reasons.begin(), reasons.end(), [](const auto& one, const auto& other) {
            return one.second.usedAt < other.second.usedAt;
        }));
}

} // namespace

std::optional<SwitchReason> SwitchReasons::reason(const std::string& bundleID) const
{
    const auto& reasons = byApplication_.value();
    const auto found = reasons.find(bundleID);
    return found == reasons.end() ? std::nullopt : std::optional(found->second);
}

void SwitchReasons::noteSwitch(
    const InputMethodSwitchDecision& decision, const SmartInputMethodConfig& smartConfig, Date now)
{
    noted_ = {decision, now, changesBehind(decision, smartConfig, now), {}};
}

void SwitchReasons::noteAgreement(
    const InputMethodSwitchDecision& decision, const SmartInputMethodConfig& smartConfig, Date now)
{
    if (!decision.bundleID)
        return;
    auto reasons = byApplication_.value();
    reasons[*decision.bundleID] = {decision, now, changesBehind(decision, smartConfig, now), {}};
    keep(std::move(reasons));
}

void SwitchReasons::noteEvent(const SwitchEvent::Any& event, const SwitchState& state, Date now)
{
    if (std::holds_alternative<SwitchEvent::InputSourceChanged>(event))
        changedAt_ = now;
    const auto noted = std::exchange(noted_, {});
    const auto last = reason(lastApplication_);
    const auto overriddenAt = isOverridden(state) ? std::optional(changedAt_) : std::nullopt;
    const bool isSwitch = noted && noted->decision.bundleID;
    // Nearly all events: nothing is copied for them.
    if (!isSwitch && (!last || last->overriddenAt == overriddenAt))
        return;
    auto reasons = byApplication_.value();
    if (isSwitch) {
        if (last)
            reasons[lastApplication_].overriddenAt = {};
        lastApplication_ = *noted->decision.bundleID;
        reasons[lastApplication_] = *noted;
    }
    reasons[lastApplication_].overriddenAt = overriddenAt;
    keep(std::move(reasons));
}

void SwitchReasons::keep(ByApplication reasons)
{
    if (reasons.size() > mostApplications)
        dropOldest(reasons);
    byApplication_.set(std::move(reasons));
}

} // namespace brindlex
