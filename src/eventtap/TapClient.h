#pragma once

#include "eventtap/GlobalEventTap.h"
#include "eventtap/PermissionRecoveryScheduler.h"
#include "foundation/Lifetime.h"
#include "foundation/Observable.h"
#include "foundation/Uuid.h"

#include <functional>
#include <optional>
#include <string_view>

namespace brindlex {

/// What a client of the tap needs to start, and to start later.
struct TapEnvironment {
    GlobalEventTap& tap;
    EventPermissions& permissions;
    MainThread& mainThread;
    ProgramActivation& activation;
};

/// One manager's place at the tap, which is held only while both permissions are there.
///
/// The triggers follow their stream without a new place. After its end nothing of the manager is
/// called any more, not even for an event that is on its way. Main thread only.
class TapClient {
public:
    /// What the client asks of its manager.
    struct Manager {
        /// In the log.
        std::string_view name;
        /// Starts anew: in a while after a permission was missing, and each time the program
        /// becomes the active one.
        std::function<void()> start;
        /// Forgets what earlier events have left, as the place is given up or exchanged.
        std::function<void()> reset;
        GlobalEventTap::Handler receive;
    };

    TapClient(const TapEnvironment& environment, Manager manager, Stream<EventTriggers> triggers);
    ~TapClient() { dropToken(); }
    TapClient(const TapClient&) = delete;
    TapClient& operator=(const TapClient&) = delete;

    /// Brings the place to the mask: one behind all others, unless the present one has that mask.
    ///
    /// Asks anew for both permissions; without them the place is given up, the log says so, and the
    /// manager is started later.
    void subscribe(EventMask mask);

    /// Gives up the place and all further attempts.
    void unsubscribe();

private:
    bool hasPermission();
    void setTriggers(const EventTriggers& triggers);
    void dropToken();

    GlobalEventTap& tap_;
    EventPermissions& permissions_;
    Manager manager_;
    PermissionRecoveryScheduler permissionRecovery_;
    Lifetime lifetime_;
    EventTriggers triggers_;
    EventMask currentEventMask_ = 0;
    std::optional<Uuid> token_;
    Subscription triggersObserver_;
};

} // namespace brindlex
