#pragma once

#include "foundation/Observable.h"
#include "foundation/Subscription.h"
#include "platform/HttpReading.h"
#include "platform/ProgramBundle.h"
#include "shell/UpdateCheckResult.h"

#include <functional>

namespace brindlex {

/// Looks for a newer version of the program where its maker publishes it, when the user asks.
///
/// Without an address of a feed in the build there is nothing to look at, and no check can be made.
/// A feed has 64 KiB and 10 s at most. A failure is logged, too. Main thread only.
class SoftwareUpdateManager {
public:
    SoftwareUpdateManager(HttpReading& network, const ProgramBundle& program);

    /// Whether a check would begin: there is a feed, and no check is going on.
    const Observable<bool>& canCheckForUpdates() const { return canCheckForUpdates_; }

    /// Begins a check whose result is delivered to `onResult`, unless none can be made.
    void checkForUpdates();

    /// What shows the result to the user.
    std::function<void(const UpdateCheckResult::Any&)> onResult{};

private:
    void finish(const Result<std::string, HttpProblem>& reply);

    HttpReading& network_;
    const ProgramBundle& program_;
    Observable<bool> canCheckForUpdates_;
    Subscription reading_;
};

} // namespace brindlex
