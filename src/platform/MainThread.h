#pragma once

#include "foundation/Date.h"
#include "foundation/Subscription.h"

#include <functional>

namespace brindlex {

/// The thread that holds all state, and its time.
class MainThread {
public:
    using Work = std::function<void()>;

    virtual ~MainThread() = default;

    /// Runs the work on the main thread, after what was posted before it; never inside this call.
    /// Callable from any thread, also before the loop runs and after it has ended (the work is then
    /// dropped).
    virtual void post(Work work) = 0;

    /// Runs the work once, not before `delay` has passed by the continuous clock. Dropping the
    /// subscription cancels it, also from inside other work that is due at the same time. A
    /// negative delay counts as 0.
    virtual Subscription after(Seconds delay, Work work) = 0;

    /// Runs the work each time `interval` has passed, first after one interval. A loop that was
    /// held up runs it once for all the intervals that it missed.
    virtual Subscription every(Seconds interval, Work work) = 0;
};

} // namespace brindlex
