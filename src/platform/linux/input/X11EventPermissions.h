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

    bool isAccessibilityTrusted() override
    {
        return isAllowed("allowsAccessibility") && stream_.isTappable();
    }
    bool canListenToEvents() override
    {
        return isAllowed("allowsInputMonitoring") && stream_.isTappable();
    }
    Subscription observeAccessibilityChanges(std::function<void()> handler) override;

private:
    bool isAllowed(const std::string& preference) const;

    X11InputStream& stream_;
    UserDefaults& defaults_;
};

} // namespace brindlex
