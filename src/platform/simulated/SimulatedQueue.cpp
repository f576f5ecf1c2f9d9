#include "platform/simulated/SimulatedQueue.h"

#include <utility>

namespace brindlex {

void SimulatedQueue::post(Work work)
{
    {
        const std::lock_guard guard(mutex_);
        work_.push_back(std::move(work));
    }
    if (mode_ == Mode::atOnce)
        drain();
}

void SimulatedQueue::drain()
{
    while (runNext()) { }
}

bool SimulatedQueue::runNext()
{
    const auto work = takeNext();
    if (!work)
        return false;
    work();
    const std::lock_guard guard(mutex_);
    isRunning_ = false;
    return true;
}

std::size_t SimulatedQueue::waiting() const
{
    const std::lock_guard guard(mutex_);
    return work_.size();
}

/// Nothing while other work runs, whose end then goes on with what waits.
SimulatedQueue::Work SimulatedQueue::takeNext()
{
    const std::lock_guard guard(mutex_);
    if (isRunning_ || work_.empty())
        return nullptr;
    isRunning_ = true;
    auto next = std::move(work_.front());
    work_.pop_front();
    return next;
}

} // namespace brindlex
