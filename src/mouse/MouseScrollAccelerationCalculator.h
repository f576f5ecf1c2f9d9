#pragma once

#include "foundation/Date.h"

namespace brindlex {

/// The memory of the acceleration curve: how fast the wheel has been turning.
struct MouseScrollAccelerationCalculator {
    /// By the continuous clock; 0 when there was no notch yet.
    Seconds lastWheelTimestamp = 0;
    double accelerationMomentum = 0;

    /// By how much a notch counts, from 1 for a slow one to 1 + 2 × `strength` in a fast spin.
    ///
    /// `vertical` and `horizontal` are the lines of the notch; `rawVertical` is what the wheel
    /// itself has sent, before inversion and before Shift turned it sideways: upward motion gains
    /// momentum faster. A strength of 0 forgets what was; one above 1 counts as 1.
    double factor(
        double vertical, double horizontal, double rawVertical, double strength, Seconds now);

    bool operator==(const MouseScrollAccelerationCalculator&) const = default;
};

} // namespace brindlex
