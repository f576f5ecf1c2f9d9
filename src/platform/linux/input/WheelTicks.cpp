#include "platform/linux/input/WheelTicks.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brindlex {
namespace {

/// Nobody scrolls so far at once: what asks for more must not hold up the input.
constexpr double mostNotches = 1000;

bool isScroll(double pixels) { return pixels != 0 && std::isfinite(pixels); }

} // namespace

int WheelTicks::announce(double pixels, Seconds now)
{
    if (!isScroll(pixels))
        return 0;
    const bool goesOn = ask(pixels) && isFollowing_;
    const bool isSpun = goesOn && now - lastAnnounced_ < spin;
    isFollowing_ = true;
    lastAnnounced_ = now;
    if (!isSpun)
        reached_ = std::max(reached_, 1.0);
    return give(reached_);
}

int WheelTicks::post(double pixels)
{
    if (!isScroll(pixels))
        return 0;
    if (isFollowing_) {
        reached_ += std::max(0.0, pixels * direction_ / pixelsPerNotch);
        return give(reached_);
    }
    ask(pixels);
    return give(mostNotches);
}

int WheelTicks::finish()
{
    isFollowing_ = false;
    const int rest = give(mostNotches);
    reached_ = 0;
    return rest;
}

/// Whether the scroll goes on in its direction.
bool WheelTicks::ask(double pixels)
{
    const double direction = std::copysign(1, pixels);
    const bool goesOn = std::exchange(direction_, direction) == direction;
    if (!goesOn) {
        owed_ = 0;
        reached_ = 0;
    }
    owed_ = std::min(owed_ + std::abs(pixels) / pixelsPerNotch, mostNotches);
    return goesOn;
}

int WheelTicks::give(double most)
{
    const double notches = std::max(0.0, std::floor(std::min(owed_ + 0.5, most)));
    owed_ -= notches;
    reached_ = std::max(0.0, reached_ - notches);
    return static_cast<int>(notches * direction_);
}

} // namespace brindlex
