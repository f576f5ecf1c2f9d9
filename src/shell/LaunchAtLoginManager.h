#pragma once

#include "foundation/Subscription.h"
#include "platform/LoginItem.h"
#include "platform/ProgramActivation.h"
#include "platform/UserDefaults.h"

namespace brindlex {

/// Keeps the preference to start at login the same as what the system does, which wins. Main thread
/// only.
class LaunchAtLoginManager {
public:
    LaunchAtLoginManager(UserDefaults& defaults, LoginItem& item, ProgramActivation& activation);

    /// Reconciles now and each time the program becomes active.
    void beginObserving();

    /// Stores what the system does, if something else is stored.
    void reconcile();

    /// Asks the system to start the program at login, or no more. A failure is logged, and the
    /// preference follows the system again.
    void setEnabled(bool isEnabled);

private:
    UserDefaults& defaults_;
    LoginItem& item_;
    ProgramActivation& activation_;
    Subscription becomingActive_;
};

} // namespace brindlex
