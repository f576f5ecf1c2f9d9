#pragma once

#include "foundation/Date.h"

namespace brindlex {

/// Shares the pixels of a scroll along one axis out into notches of a wheel, which is all that
/// applications take here.
///
///     free ──announce──▶ following ──finish──▶ free
///
/// What is announced decides how many notches are given, to the nearest: the first at once unless
/// the wheel is being spun, the others when the pixels that are posted reach them, and with the end
/// those that no pixel has reached. Free, the pixels count for themselves. Less than a notch that
/// is left over waits for the next scroll, but only for one in the same direction.
class WheelTicks {
public:
    static constexpr double pixelsPerNotch = 10;
    /// What is announced within this time of the last belongs to one spin of the wheel.
    static constexpr Seconds spin = 0.1;

    /// Each returns how many notches to turn now, with the sign of the pixels.
    int announce(double pixels, Seconds now);
    int post(double pixels);
    int finish();

private:
    bool ask(double pixels);
    int give(double most);

    bool isFollowing_ = false;
    double direction_ = 0;
    Seconds lastAnnounced_ = 0;
    /// In notches, counted in the direction: asked for and not given, and how many of them the
    /// pixels have reached.
    double owed_ = 0;
    double reached_ = 0;
};

} // namespace brindlex
