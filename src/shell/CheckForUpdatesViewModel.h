#pragma once

#include "foundation/Observable.h"
#include "foundation/Subscription.h"
#include "shell/SoftwareUpdateManager.h"

namespace brindlex {

/// What the menu item for updates shows and does. The manager outlives it. Main thread only.
class CheckForUpdatesViewModel {
public:
    explicit CheckForUpdatesViewModel(SoftwareUpdateManager& manager)
        : manager_(manager), changes_(manager.canCheckForUpdates().subscribe(
                                 [this](bool can) { canCheckForUpdates_.set(can); }))
    {
    }
    CheckForUpdatesViewModel(const CheckForUpdatesViewModel&) = delete;
    CheckForUpdatesViewModel& operator=(const CheckForUpdatesViewModel&) = delete;

    /// Whether the item is enabled.
    const Observable<bool>& canCheckForUpdates() const { return canCheckForUpdates_; }

    void checkForUpdates() { manager_.checkForUpdates(); }

private:
    SoftwareUpdateManager& manager_;
    Observable<bool> canCheckForUpdates_{false};
    Subscription changes_;
};

} // namespace brindlex
