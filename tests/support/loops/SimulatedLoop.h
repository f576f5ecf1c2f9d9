#pragma once

#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainThread.h"

#include <functional>

namespace brindlex {

/// The loop of a simulated main thread, run by a test.
class SimulatedLoop {
public:
    MainThread& mainThread() { return mainThread_; }
    const Clock& clock() const { return clock_; }

    /// Runs the loop until the condition holds; false when it does not within ten seconds of the
    /// simulated time.
    bool runUntil(const std::function<bool()>& condition)
    {
        constexpr Seconds longest = 10;
        constexpr Seconds step = 0.001;
        mainThread_.runUntilIdle();
        for (const auto end = clock_.continuousTime() + longest;
             !condition() && clock_.continuousTime() < end;)
            mainThread_.advance(step);
        return condition();
    }

    void runFor(Seconds interval) { mainThread_.advance(interval); }

    /// Lets time pass in which the main thread is busy with something else.
    void hold(Seconds interval) { clock_.advance(interval); }

private:
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
};

} // namespace brindlex
