#pragma once

#include "foundation/Uuid.h"
#include "mouse/GlobalEventTap.h"
#include "mouse/PermissionRecoveryScheduler.h"

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

/// One manager's place at the tap. Main thread only.
class TapClient {
public:
    /// `name` is the manager's in the log.
    TapClient(const TapEnvironment& environment, std::string_view name);
    ~TapClient() { unsubscribe(); }
    TapClient(const TapClient&) = delete;
    TapClient& operator=(const TapClient&) = delete;

    bool isSubscribed() const { return token_.has_value(); }

    /// Asks anew for both permissions, and says in the log when one is missing.
    bool hasPermission();

    /// Tries again in a while, and each time the program becomes the active one.
    void retryLater(std::function<void()> retry);

    /// Takes a place behind all others, in exchange for the present one, and tries nothing more.
    void subscribe(EventMask mask, GlobalEventTap::Handler handler, EventTriggers triggers);

    /// Says anew which events matter, if there is a subscription.
    void setTriggers(EventTriggers triggers);

    /// Gives up the place and all further attempts.
    void unsubscribe();

private:
    void dropToken();

    GlobalEventTap& tap_;
    EventPermissions& permissions_;
    std::string_view name_;
    PermissionRecoveryScheduler permissionRecovery_;
    std::optional<Uuid> token_;
};

} // namespace brindlex
