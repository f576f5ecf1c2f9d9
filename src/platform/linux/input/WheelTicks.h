#pragma once

#include "foundation/Date.h"

namespace brindlex {

/// Turns the pixels of a scroll along one axis into notches of a wheel, which is all that
/// applications take here.
///
/// After each call as many notches have been given as come closest to all the pixels so far, so
/// that over a whole scroll nothing is lost and nothing invented, and the first notch comes
/// halfway. What is left over ends with the scroll: with the first pixel in the other direction, or
/// with a pause.
class WheelTicks {
public:
    static constexpr double pixelsPerNotch = 10;
    /// Two scrolls that lie further apart have nothing to do with each other.
    static constexpr Seconds pause = 0.3;

    /// How many notches to turn now, with the sign of the pixels.
    int add(double pixels, Seconds now);

private:
    double pending_ = 0;
    double lastDirection_ = 0;
    Seconds lastTime_ = 0;
};

} // namespace brindlex
