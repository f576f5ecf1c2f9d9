#pragma once

#include "platform/Clock.h"

#include <atomic>

namespace brindlex {

/// Clocks that move only when they are told to.
class SimulatedClock : public Clock {
public:
    explicit SimulatedClock(Date now = Date{800'000'000}) : now_(now.secondsSinceReferenceDate) { }

    Date now() const override { return Date{now_.load()}; }
    Seconds continuousTime() const override { return continuousTime_.load(); }

    /// Lets time pass on both clocks.
    void advance(Seconds interval)
    {
        now_ = now_ + interval;
        continuousTime_ = continuousTime_ + interval;
    }

    /// Sets the system clock alone, also back.
    void setNow(Date now) { now_ = now.secondsSinceReferenceDate; }

private:
    std::atomic<Seconds> now_;
    std::atomic<Seconds> continuousTime_{0};
};

} // namespace brindlex
