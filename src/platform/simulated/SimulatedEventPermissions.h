#pragma once

#include "foundation/Subscribers.h"
#include "platform/EventPermissions.h"

namespace brindlex {

/// Permissions that are given and taken without a person.
class SimulatedEventPermissions : public EventPermissions {
public:
    bool isAccessibilityTrusted() override
    {
        ++timesAsked;
        return isTrusted;
    }
    bool canListenToEvents() override
    {
        ++timesAsked;
        return canListen;
    }
    Subscription observeAccessibilityChanges(std::function<void()> handler) override
    {
        return subscribers_.add(std::move(handler));
    }

    /// Gives or takes both, and says nothing.
    void set(bool isGranted) { isTrusted = canListen = isGranted; }

    /// Tells that the permission to control others may have changed.
    void tell() { subscribers_.notify(); }

    bool isTrusted = true;
    bool canListen = true;
    int timesAsked = 0;

private:
    Subscribers<std::function<void()>> subscribers_;
};

} // namespace brindlex
