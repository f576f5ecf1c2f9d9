#include "mouse/MouseGestureDragState.h"

#include <cmath>

namespace brindlex {

void MouseGestureDragState::update(Point point, double threshold)
{
    const double dx = point.x - downPoint.x;
    const double dy = point.y - downPoint.y;
    const double distance = std::hypot(dx, dy);
    if (!(distance > maxDisplacement))
        return;
    maxDisplacement = distance;
    if (distance < threshold)
        return;
    if (std::abs(dy) > std::abs(dx))
        lockedDirection = dy >= 0 ? MouseDirection::down : MouseDirection::up;
    else
        lockedDirection = dx >= 0 ? MouseDirection::right : MouseDirection::left;
}

} // namespace brindlex
