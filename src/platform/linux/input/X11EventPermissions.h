#pragma once

#include "platform/EventPermissions.h"
#include "platform/UserDefaults.h"
#include "platform/linux/input/X11InputStream.h"

#include <string>

namespace brindlex {

/// X asks nobody: who may open a window may control the input. Permission is that the server can be
/// tapped at all (XInput 2.2 and XTEST) and that the user has not forbidden it.
///
/// The user forbids by a preference: `allowsAccessibility` or `allowsInputMonitoring` is false.
/// Observers are notified of a change of either, and of no other.
class X11EventPermissions : public EventPermissions {
public:
    X11EventPermissions(X11InputStream& stream, UserDefaults& defaults)
        : stream_(stream), defaults_(defaults)
    {
    }

    bool isAccessibilityTrusted() override { return !obstacle(EventPermission::accessibility); }
    bool canListenToEvents() override { return !obstacle(EventPermission::inputMonitoring); }
    Subscription observeAccessibilityChanges(std::function<void()> handler) override;
    std::optional<PermissionObstacle> obstacle(EventPermission permission) override;
    /// Removes the preference by which the user has forbidden it.
    void request(EventPermission permission) override;

private:
    bool isAllowed(EventPermission permission) const;

    X11InputStream& stream_;
    UserDefaults& defaults_;
};

} // namespace brindlex
