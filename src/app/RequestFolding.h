#pragma once

#include "foundation/Date.h"
#include "foundation/Subscription.h"
#include "platform/MainThread.h"

#include <functional>

namespace brindlex {

/// Carries out requests of one kind, however fast they come: the first at once, and all that come
/// within the interval after that together, at its end. Main thread only.
class RequestFolding {
public:
    RequestFolding(MainThread& mainThread, Seconds interval, std::function<void()> work);

    void request();

    /// Forgets what has been requested and not been carried out yet.
    void cancel();

private:
    void carryOut();

    MainThread& mainThread_;
    const Seconds interval_;
    const std::function<void()> work_;
    Subscription pause_;
    bool isRequestedAgain_ = false;
};

} // namespace brindlex
