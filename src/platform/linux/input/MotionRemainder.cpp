#include "platform/linux/input/MotionRemainder.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brindlex {
namespace {

/// Adds a distance to what was kept and takes its whole part.
int takeWhole(double& kept, double distance)
{
    constexpr double most = std::numeric_limits<int>::max();
    if (!std::isfinite(distance))
        return 0;
    kept += distance;
    const double whole = std::trunc(kept);
    kept -= whole;
    return static_cast<int>(std::clamp(whole, -most, most));
}

} // namespace

MotionRemainder::Pixels MotionRemainder::add(double x, double y)
{
    return {takeWhole(x_, x), takeWhole(y_, y)};
}

} // namespace brindlex
