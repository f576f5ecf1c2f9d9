#pragma once

#include "platform/MainThread.h"
#include "platform/simulated/SimulatedClock.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

namespace brindlex {

/// The main thread of a simulated process: the thread that calls `advance` and `runUntilIdle`.
class SimulatedMainThread : public MainThread {
public:
    explicit SimulatedMainThread(SimulatedClock& clock) : clock_(clock) { }

    void post(Work work) override;
    Subscription after(Seconds delay, Work work) override;
    Subscription every(Seconds interval, Work work) override;

    /// Lets time pass and runs at each moment what is due then: what was posted, then the timers in
    /// the order of their due time, those of the same time in the order of their creation.
    void advance(Seconds interval);

    /// Runs what was posted and what is due now, with all that comes of it. Nothing may post itself
    /// without end.
    void runUntilIdle();

    /// Ends the loop: what is posted and what is due later is dropped.
    void end();

    /// How many timers wait.
    std::size_t timers() const { return timers_->size(); }

private:
    struct Timer {
        Seconds due = 0;
        std::optional<Seconds> interval{};
        std::shared_ptr<const Work> work{};
    };
    /// By number of creation.
    using Timers = std::map<std::uint64_t, Timer>;

    Subscription add(Seconds due, std::optional<Seconds> interval, Work work);
    void runPosted();
    /// Runs the timer that is due first, if one is due by then.
    bool runNextDue(Seconds until);

    SimulatedClock& clock_;
    std::mutex mutex_;
    std::deque<Work> posted_;
    std::shared_ptr<Timers> timers_ = std::make_shared<Timers>();
    std::uint64_t created_ = 0;
    bool hasEnded_ = false;
};

} // namespace brindlex
