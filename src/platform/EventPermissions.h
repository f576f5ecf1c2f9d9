#pragma once

#include "foundation/Subscription.h"

#include <functional>

namespace brindlex {

/// What the user allows the program to do with the input. Main thread only.
///
/// Asked anew each time; asking never shows anything to the user.
class EventPermissions {
public:
    virtual ~EventPermissions() = default;

    /// Whether the program may control others (Accessibility).
    virtual bool isAccessibilityTrusted() = 0;

    /// Whether the program may listen to the input (Input Monitoring).
    virtual bool canListenToEvents() = 0;

    /// Notifies the observer that `isAccessibilityTrusted` may have changed, for this or another
    /// program.
    virtual Subscription observeAccessibilityChanges(std::function<void()> handler) = 0;
};

/// Both permissions at one moment.
struct EventPermissionState {
    bool isAccessibilityTrusted = false;
    bool canListenToEvents = false;

    static EventPermissionState ask(EventPermissions& permissions)
    {
        const bool isTrusted = permissions.isAccessibilityTrusted();
        const bool canListen = permissions.canListenToEvents();
        return {isTrusted, canListen};
    }

    bool isGranted() const { return isAccessibilityTrusted && canListenToEvents; }

    bool operator==(const EventPermissionState&) const = default;
};

} // namespace brindlex
