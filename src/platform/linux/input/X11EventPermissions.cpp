#include "platform/linux/input/X11EventPermissions.h"

#include <memory>
#include <utility>

namespace brindlex {

namespace {

std::string preferenceOf(EventPermission permission)
{
    return permission == EventPermission::accessibility ? "allowsAccessibility"
                                                        : "allowsInputMonitoring";
}

} // namespace

Subscription X11EventPermissions::observeAccessibilityChanges(std::function<void()> handler)
{
    const auto allowed = [this] {
        return std::pair{
            isAllowed(EventPermission::accessibility), isAllowed(EventPermission::inputMonitoring)};
    };
    return defaults_.observeChanges(
        [allowed, last = std::make_shared<std::pair<bool, bool>>(allowed()),
            handler = std::move(handler)] {
            const auto before = std::exchange(*last, allowed());
            if (*last != before)
                handler();
        });
}

std::optional<PermissionObstacle> X11EventPermissions::obstacle(EventPermission permission)
{
    if (!isAllowed(permission))
        return PermissionObstacle{PermissionObstacle::Reason::refused};
    return stream_.obstacle();
}

void X11EventPermissions::request(EventPermission permission)
{
    if (!isAllowed(permission))
        defaults_.set(preferenceOf(permission), std::nullopt);
}

bool X11EventPermissions::isAllowed(EventPermission permission) const
{
    return defaults_.value(preferenceOf(permission)) != PreferenceValue(false);
}

} // namespace brindlex
