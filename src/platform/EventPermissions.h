#pragma once

#include "foundation/Subscription.h"

#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// What the user allows a program to do with the input.
enum class EventPermission {
    /// To control other programs.
    accessibility,
    /// To listen to what the user does in them.
    inputMonitoring,
};

/// Why a permission is not there.
struct PermissionObstacle {
    enum class Reason {
        /// The user has not given it, or has taken it back.
        refused,
        /// The system cannot do what it is for.
        lacking,
        /// The user's session lets no program do it.
        closedSession,
    };
    Reason reason = Reason::refused;
    /// What the system lacks, by its name: "XTEST".
    std::string lacking{};

    bool operator==(const PermissionObstacle&) const = default;
};

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

    /// Why the permission is not there; nothing while it is.
    virtual std::optional<PermissionObstacle> obstacle(EventPermission permission) = 0;

    /// Asks the user for a permission that was refused, in the system's way; another obstacle stays
    /// as it is.
    virtual void request(EventPermission permission) = 0;
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
