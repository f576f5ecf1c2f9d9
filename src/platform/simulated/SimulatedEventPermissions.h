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

    /// Gives or takes both, without a notification.
    void set(bool isGranted) { isTrusted = canListen = isGranted; }

    /// Notifies that the permission to control others may have changed.
    void notify() { subscribers_.notify(); }

    bool isTrusted = true;
    bool canListen = true;
    int timesAsked = 0;

private:
    SimulatedJournal::Writer journal_;
    Subscribers<std::function<void()>> subscribers_;
};

} // namespace brindlex
