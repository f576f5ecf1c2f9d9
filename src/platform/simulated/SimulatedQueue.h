#pragma once

#include "platform/BackgroundQueue.h"

#include <cstddef>
#include <deque>
#include <mutex>

namespace brindlex {

/// A queue without a thread: its work runs when it is told to, or at once. One piece of work never
/// runs inside another.
class SimulatedQueue : public BackgroundQueue {
public:
    enum class Mode { whenTold, atOnce };

    explicit SimulatedQueue(Mode mode = Mode::whenTold) : mode_(mode) { }
    ~SimulatedQueue() override { drain(); }

    void post(Work work) override;

    /// Runs what waits, and what that posts.
    void drain() override;

    /// Runs the piece of work that has waited longest; returns whether there was one.
    bool runNext();

    /// How many pieces of work wait.
    std::size_t waiting() const;

private:
    Work takeNext();

    const Mode mode_;
    mutable std::mutex mutex_;
    std::deque<Work> work_;
    bool isRunning_ = false;
};

} // namespace brindlex
