#include "mouse/ScrollSmoother.h"

#include <utility>

namespace brindlex {

ScrollSmoother::ScrollSmoother(FrameDriver& driver, std::function<Seconds()> smoothDuration,
    Post post, std::function<void()> drained)
    : driver_(driver), smoothDuration_(std::move(smoothDuration)), post_(std::move(post)),
      drained_(std::move(drained))
{
}

void ScrollSmoother::add(std::uint64_t flags, ScrollDistance change)
{
    motion_.add(flags, change);
    if (isRunning())
        return;
    motion_.lastTimestamp = 0;
    driver_.start([this](Seconds now) { frame(now); });
}

void ScrollSmoother::stop()
{
    driver_.stop();
    motion_.lastTimestamp = 0;
}

void ScrollSmoother::reset()
{
    stop();
    motion_ = {};
}

void ScrollSmoother::frame(Seconds now)
{
    const auto frame = motion_.advance(now, smoothDuration_());
    if (frame.step)
        post_(motion_.pendingFlags, *frame.step);
    if (!frame.isDrained)
        return;
    stop();
    drained_();
}

} // namespace brindlex
