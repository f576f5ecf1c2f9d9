#pragma once

#include "foundation/Subscribers.h"
#include "platform/EventPermissions.h"
#include "platform/simulated/SimulatedJournal.h"

namespace brindlex {

/// Permissions that are given and taken without a person.
class SimulatedEventPermissions : public EventPermissions {
public:
    explicit SimulatedEventPermissions(SimulatedJournal::Writer journal = {})
        : journal_(journal) { }

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
        return journal_.addObservation("permissions", subscribers_.add(std::move(handler)));
    }

    std::optional<PermissionObstacle> obstacle(EventPermission permission) override
    {
        return isGiven(permission) ? std::nullopt : std::optional(reason);
    }
    void request(EventPermission permission) override
    {
        if (isGiven(permission) || reason.reason != PermissionObstacle::Reason::refused)
            return;
        isGiven(permission) = true;
        notify();
    }

    /// Gives or takes both, without a notification.
    void set(bool isGranted) { isTrusted = canListen = isGranted; }

    /// Notifies that the permission to control others may have changed.
    void notify() { subscribers_.notify(); }

    bool isTrusted = true;
    bool canListen = true;
    int timesAsked = 0;
    /// Why those that are not there are not.
    PermissionObstacle reason{};

private:
    bool& isGiven(EventPermission permission)
    {
        return permission == EventPermission::accessibility ? isTrusted : canListen;
    }

    SimulatedJournal::Writer journal_;
    Subscribers<std::function<void()>> subscribers_;
};

} // namespace brindlex
