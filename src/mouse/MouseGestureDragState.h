#pragma once

#include "foundation/Date.h"
#include "foundation/Geometry.h"
#include "mouse/MouseDirection.h"

#include <optional>

namespace brindlex {

/// One press of a button from its down to its up.
struct MouseGestureDragState {
    Point downPoint{};
    /// The greatest distance from `downPoint` so far.
    double maxDisplacement = 0;
    /// Where the drag goes; absent until it has gone far enough.
    std::optional<MouseDirection> lockedDirection{};
    /// Whether it is settled what the press means.
    bool hasDispatched = false;
    Date downTime{};

    /// Takes in where the cursor is now. A drag that has reached the threshold has a direction, the
    /// one of its farthest point; a diagonal counts as horizontal.
    void update(Point point, double threshold);

    bool operator==(const MouseGestureDragState&) const = default;
};

} // namespace brindlex
