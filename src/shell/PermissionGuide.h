#pragma once

#include "foundation/Observable.h"
#include "foundation/Subscription.h"
#include "foundation/Uuid.h"
#include "platform/AutomationPermission.h"
#include "platform/EventPermissions.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What the program needs of the system and of the user.
enum class GuidedPermission { accessibility, inputMonitoring, automation };

enum class PermissionStatus {
    allowed,
    needsSetup,
    /// It cannot be read in advance.
    manual,
};

/// What keeps a permission from working, or what it still takes.
struct PermissionAdvice {
    enum class Kind {
        none,
        /// The user has taken it back in this program.
        refused,
        /// The system lacks what `lacking` names.
        systemLacks,
        /// The session gives the input to no program.
        closedSession,
        /// Other programs tell nothing.
        automationOff,
        /// Those that were started before it was switched on may tell nothing.
        restartBrowsers,
        /// Nothing is installed by which they could.
        automationUnavailable,
    };
    Kind kind = Kind::none;
    std::string lacking{};

    bool operator==(const PermissionAdvice&) const = default;
};

/// A permission as it is at the moment.
struct PermissionReport {
    GuidedPermission permission = GuidedPermission::accessibility;
    PermissionStatus status = PermissionStatus::allowed;
    PermissionAdvice advice{};
    /// Whether asking for it would do something.
    bool canRequest = false;

    bool operator==(const PermissionReport&) const = default;
};

/// What the guide to the permissions shows and does, without its screen. Main thread only.
class PermissionGuide {
public:
    PermissionGuide(EventPermissions& eventPermissions, AutomationPermission& automation);

    /// All permissions as they are now, in the order in which the guide shows them.
    std::vector<PermissionReport> reports() const;

    /// Another one each time when the reports may have changed.
    const Observable<Uuid>& refreshToken() const { return refreshToken_; }

    /// Has everything read anew.
    void refresh();

    /// Does what gives the permission, as far as the system lets the program.
    void request(GuidedPermission permission);

private:
    PermissionReport eventReport(GuidedPermission shown, EventPermission permission) const;
    PermissionReport automationReport() const;
    void regenerate() { refreshToken_.set(Uuid::random()); }

    EventPermissions& eventPermissions_;
    AutomationPermission& automation_;
    Observable<Uuid> refreshToken_{Uuid::random()};
    Subscription eventChanges_;
    Subscription automationChanges_;
};

} // namespace brindlex
