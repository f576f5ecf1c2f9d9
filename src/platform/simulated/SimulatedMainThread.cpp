#include "platform/simulated/SimulatedMainThread.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brindlex {
namespace {

/// No timer of a real loop is finer.
constexpr Seconds shortestInterval = 0.001;

/// Sums of intervals are equal up to this.
constexpr Seconds clockGrain = 1e-9;

} // namespace

void SimulatedMainThread::post(Work work)
{
    const std::lock_guard guard(mutex_);
    if (!hasEnded_)
        posted_.push_back(std::move(work));
}

Subscription SimulatedMainThread::after(Seconds delay, Work work)
{
    return add(clock_.continuousTime() + std::max(delay, 0.0), {}, std::move(work));
}

Subscription SimulatedMainThread::every(Seconds interval, Work work)
{
    const auto between = std::max(interval, shortestInterval);
    return add(clock_.continuousTime() + between, between, std::move(work));
}

Subscription SimulatedMainThread::add(Seconds due, std::optional<Seconds> interval, Work work)
{
    const auto number = created_++;
    timers_->emplace(number, Timer{due, interval, std::make_shared<const Work>(std::move(work))});
    return Subscription([timers = std::weak_ptr(timers_), number] {
        if (const auto present = timers.lock())
            present->erase(number);
    });
}

void SimulatedMainThread::advance(Seconds interval)
{
    const auto end = clock_.continuousTime() + interval;
    runPosted();
    while (runNextDue(end))
        runPosted();
    clock_.advance(std::max(end - clock_.continuousTime(), 0.0));
}

void SimulatedMainThread::runUntilIdle() { advance(0); }

void SimulatedMainThread::end()
{
    const std::lock_guard guard(mutex_);
    hasEnded_ = true;
    posted_.clear();
    timers_->clear();
}

void SimulatedMainThread::runPosted()
{
    for (;;) {
        Work next;
        {
            const std::lock_guard guard(mutex_);
            if (posted_.empty())
                return;
            next = std::move(posted_.front());
            posted_.pop_front();
        }
        next();
    }
}

bool SimulatedMainThread::runNextDue(Seconds until)
{
    const auto next = std::min_element(timers_->begin(), timers_->end(),
        [](const auto& one, const auto& other) { return one.second.due < other.second.due; });
    if (next == timers_->end() || next->second.due > until + clockGrain)
        return false;
    auto& timer = next->second;
    clock_.advance(std::max(timer.due - clock_.continuousTime(), 0.0));
    const auto work = timer.work;
    if (timer.interval) {
        const auto late = clock_.continuousTime() - timer.due;
        timer.due += *timer.interval * (1 + std::floor(late / *timer.interval));
    } else {
        timers_->erase(next);
    }
    (*work)();
    return true;
}

} // namespace brindlex
