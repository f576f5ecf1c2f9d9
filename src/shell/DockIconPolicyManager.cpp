#include "shell/DockIconPolicyManager.h"

#include "foundation/Date.h"

#include <array>
#include <utility>

namespace brindlex {
namespace {

/// A system takes a policy late, or falls back to the one before.
constexpr std::array<Seconds, 3> recheckDelays{0.02, 0.05, 0.1};

constexpr ActivationPolicy policyFor(bool showsDockIcon)
{
    return showsDockIcon ? ActivationPolicy::regular : ActivationPolicy::accessory;
}

} // namespace

DockIconPolicyManager::DockIconPolicyManager(
    ActivationPolicySetting& policies, MainThread& mainThread)
    : policies_(policies), mainThread_(mainThread)
{
}

DockIconPolicyResult DockIconPolicyManager::apply(bool showsDockIcon)
{
    const auto wanted = policyFor(showsDockIcon);
    const bool holds = policies_.activationPolicy() == wanted;
    if (appliedShowsDockIcon_ == showsDockIcon && holds)
        return {false, showsDockIcon};
    if (!holds)
        policies_.setActivationPolicy(wanted);
    appliedShowsDockIcon_ = showsDockIcon;
    return {true, showsDockIcon};
}

void DockIconPolicyManager::applyDeferred(bool showsDockIcon, ResultHandler handler)
{
    desiredShowsDockIcon_ = showsDockIcon;
    applyResultHandler_ = std::move(handler);
    if (std::exchange(isApplyingDockIconState_, true))
        return;
    didChange_ = false;
    pendingApplyTask_ = mainThread_.after(0, [this] { applyDesired(); });
}

void DockIconPolicyManager::cancelPending()
{
    pendingApplyTask_.reset();
    isApplyingDockIconState_ = false;
    desiredShowsDockIcon_.reset();
    applyResultHandler_ = nullptr;
}

std::optional<bool> DockIconPolicyManager::wantedShowsDockIcon() const
{
    return desiredShowsDockIcon_ ? desiredShowsDockIcon_ : appliedShowsDockIcon_;
}

void DockIconPolicyManager::applyDesired()
{
    const auto result = apply(*desiredShowsDockIcon_);
    didChange_ = didChange_ || result.didChange;
    recheckLater(result.showsDockIcon, 0);
}

void DockIconPolicyManager::recheckLater(bool applied, std::size_t round)
{
    pendingApplyTask_ = mainThread_.after(
        recheckDelays.at(round), [this, applied, round] { recheck(applied, round); });
}

void DockIconPolicyManager::recheck(bool applied, std::size_t round)
{
    if (desiredShowsDockIcon_ != applied)
        return applyDesired();
    const auto wanted = policyFor(applied);
    if (policies_.activationPolicy() == wanted || round + 1 == recheckDelays.size())
        return report();
    policies_.setActivationPolicy(wanted);
    recheckLater(applied, round + 1);
}

void DockIconPolicyManager::report()
{
    const DockIconPolicyResult result{didChange_, *desiredShowsDockIcon_};
    const auto handler = std::exchange(applyResultHandler_, nullptr);
    cancelPending();
    if (handler)
        handler(result);
}

} // namespace brindlex
