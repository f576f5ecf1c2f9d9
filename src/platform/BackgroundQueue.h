#pragma once

#include <functional>

namespace brindlex {

/// One thread beside the main thread that runs work in the order of posting. Its end runs what
/// still waits.
class BackgroundQueue {
public:
    using Work = std::function<void()>;

    virtual ~BackgroundQueue() = default;

    /// Callable from any thread; returns without waiting for the work.
    virtual void post(Work work) = 0;

    /// Returns when everything posted before this call has run. From its own work it returns at
    /// once.
    virtual void drain() = 0;
};

} // namespace brindlex
