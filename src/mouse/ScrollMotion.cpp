#include "mouse/ScrollMotion.h"

#include "mouse/NominalFrame.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brindlex {
namespace {

constexpr Seconds minimumTimeConstant = 0.001;

bool isSmall(double distance) { return std::abs(distance) < scrollStopThreshold; }

bool isReversal(double change, double remainder)
{
    return std::signbit(change) != std::signbit(remainder) && !isSmall(change)
        && !isSmall(remainder);
}

} // namespace

void ScrollMotion::add(std::uint64_t flags, ScrollDistance change)
{
    if (isReversal(change.vertical, remainingY) || isReversal(change.horizontal, remainingX)) {
        remainingX = 0;
        remainingY = 0;
    }
    remainingX += change.horizontal;
    remainingY += change.vertical;
    pendingFlags = flags;
}

ScrollMotion::Frame ScrollMotion::advance(Seconds now, Seconds smoothDuration)
{
    const auto previous = std::exchange(lastTimestamp, now);
    const auto timeConstant = std::max(smoothDuration, minimumTimeConstant);
    const auto elapsed = previous == 0 ? nominalFrame : now - previous;
    const double share = 1 - std::exp(-elapsed / timeConstant);
    const ScrollDistance step{remainingY * share, remainingX * share};
    remainingY -= step.vertical;
    remainingX -= step.horizontal;
    Frame frame;
    if (!isSmall(step.vertical) || !isSmall(step.horizontal))
        frame.step = step;
    frame.isDrained = isSmall(remainingY) && isSmall(remainingX);
    return frame;
}

} // namespace brindlex
