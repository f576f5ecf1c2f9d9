#pragma once

#include "foundation/Subscription.h"
#include "platform/ActivationPolicy.h"
#include "platform/MainThread.h"
#include "shell/DockIconPolicyResult.h"

#include <cstddef>
#include <functional>
#include <optional>

namespace brindlex {

/// Gives the program a place among the others of the desktop, or takes it away: an icon in the
/// dock, or its windows in the task bar and the switcher. Main thread only.
class DockIconPolicyManager {
public:
    using ResultHandler = std::function<void(DockIconPolicyResult)>;

    DockIconPolicyManager(ActivationPolicySetting& policies, MainThread& mainThread);

    /// Sets the policy now. Nothing has changed when it was applied before and holds still.
    DockIconPolicyResult apply(bool showsDockIcon);

    /// Sets the policy from the loop, looks after it until the system has taken it, three times at
    /// the most, and notifies the handler once. Of several calls before that the last one holds,
    /// with its handler.
    void applyDeferred(bool showsDockIcon, ResultHandler handler);

    /// Ends what `applyDeferred` has begun; nobody is notified.
    void cancelPending();

    /// What was asked for last, by either way; nothing before.
    std::optional<bool> wantedShowsDockIcon() const;

private:
    void applyDesired();
    void recheckLater(bool applied, std::size_t round);
    void recheck(bool applied, std::size_t round);
    void report();

    ActivationPolicySetting& policies_;
    MainThread& mainThread_;
    Subscription pendingApplyTask_;
    std::optional<bool> appliedShowsDockIcon_;
    std::optional<bool> desiredShowsDockIcon_;
    bool isApplyingDockIconState_ = false;
    bool didChange_ = false;
    ResultHandler applyResultHandler_;
};

} // namespace brindlex
