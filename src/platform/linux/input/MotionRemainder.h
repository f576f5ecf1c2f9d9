#pragma once

namespace brindlex {

/// Turns the motion of a mouse, in pixels and parts of one, into whole pixels, which is all that
/// can be played to the applications.
///
/// What is less than a pixel is kept for the next motion, on each axis for itself, so that over a
/// whole way less than a pixel is lost. What is no number moves nothing, and what is beyond every
/// screen goes as far as a number of pixels can, without the rest.
class MotionRemainder {
public:
    struct Pixels {
        int x = 0;
        int y = 0;

        bool isNone() const { return x == 0 && y == 0; }
        bool operator==(const Pixels&) const = default;
    };

    /// How far to move now.
    Pixels add(double x, double y);

private:
    double x_ = 0;
    double y_ = 0;
};

} // namespace brindlex
