#include "platform/linux/input/X11EventPermissions.h"

#include <memory>
#include <utility>

namespace brindlex {

Subscription X11EventPermissions::observeAccessibilityChanges(std::function<void()> handler)
{
    const auto allowed = [this] {
        return std::pair{isAllowed("allowsAccessibility"), isAllowed("allowsInputMonitoring")};
    };
    return defaults_.observeChanges(
        [allowed, last = std::make_shared<std::pair<bool, bool>>(allowed()),
            handler = std::move(handler)] {
            const auto before = std::exchange(*last, allowed());
            if (*last != before)
                handler();
        });
}

bool X11EventPermissions::isAllowed(const std::string& preference) const
{
    return defaults_.value(preference) != PreferenceValue(false);
}

} // namespace brindlex
