#pragma once

#include "foundation/Date.h"
#include "foundation/Subscription.h"
#include "platform/MainThread.h"
#include "platform/ProgramActivation.h"

#include <functional>

namespace brindlex {

/// Tries a start again while permission is missing: 2 seconds after each `schedule`, and each time
/// the program becomes the active one, until `cancel`.
///
///     idle ──schedule──▶ armed (task and observer) ──after 2 s──▶ armed (observer) ──┐
///      ▲                  ▲  └──────────────────────cancel──────────────┘            │
///      └──────────────────┼─────────────────────────cancel───────────────────────────┤
///                         └─────────────────────────schedule─────────────────────────┘
///
/// Main thread only.
class PermissionRecoveryScheduler {
public:
    static constexpr Seconds retryDelay = 2;

    PermissionRecoveryScheduler(MainThread& mainThread, ProgramActivation& activation);

    /// Puts a new attempt in the place of one that is pending. The attempt at becoming active stays
    /// that of the first call.
    void schedule(std::function<void()> retry);

    void cancel();

private:
    MainThread& mainThread_;
    ProgramActivation& activation_;
    Subscription retryTask_;
    Subscription didBecomeActiveObserver_;
};

} // namespace brindlex
