#include "platform/linux/input/WheelTicks.h"

#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

/// Nobody scrolls so far at once: what asks for more must not hold up the input.
constexpr double mostNotches = 1000;

} // namespace

int WheelTicks::add(double pixels, Seconds now)
{
    if (pixels == 0 || !std::isfinite(pixels))
        return 0;
    const double direction = std::copysign(1, pixels);
    if (direction != lastDirection_ || now - lastTime_ > pause)
        pending_ = 0;
    lastDirection_ = direction;
    lastTime_ = now;
    pending_ += pixels;
    const double notches = std::round(pending_ / pixelsPerNotch);
    pending_ -= notches * pixelsPerNotch;
    return static_cast<int>(std::clamp(notches, -mostNotches, mostNotches));
}

} // namespace brindlex
