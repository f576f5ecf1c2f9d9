#include "Curves.h"

#include "mouse/MouseScrollAccelerationCalculator.h"
#include "mouse/ScrollMotion.h"
#include "mouse/SpaceSwitcher.h"

#include <utility>

namespace brindlex {
namespace {

constexpr double milliseconds = 1000;

/// The factor of each notch of a wheel that begins to turn, a notch in each interval.
Curve acceleration(const std::string& name, Seconds interval, double direction, double strength)
{
    constexpr int notches = 20;
    MouseScrollAccelerationCalculator calculator;
    Curve curve{name, {}};
    for (int notch = 1; notch <= notches; ++notch)
        curve.places.push_back({static_cast<double>(notch),
            calculator.factor(direction, 0, direction, strength, notch * interval)});
    return curve;
}

Diagram accelerationDiagram()
{
    constexpr double up = 1;
    constexpr double down = -1;
    return {"Acceleration of the wheel", "notch of a turn", "factor", 20, 3,
        {
            acceleration("20 ms apart, upward", 0.02, up, 1),
            acceleration("20 ms apart, downward", 0.02, down, 1),
            acceleration("50 ms apart, downward", 0.05, down, 1),
            acceleration("20 ms apart, downward, strength 0.5", 0.02, down, 0.5),
            acceleration("80 ms apart and slower", 0.08, down, 1),
        }};
}

/// How much of a scroll of 100 pixels has been shown, in hundredths.
Curve smoothScroll(const std::string& name, Seconds duration)
{
    constexpr double pixels = 100;
    constexpr Seconds frame = 1.0 / 60;
    ScrollMotion motion;
    motion.add(0, {.vertical = pixels});
    Curve curve{name, {{0, 0}}};
    double shown = 0;
    for (int number = 1; number <= 60; ++number) {
        const auto drawn = motion.advance(1 + number * frame, duration);
        if (drawn.step)
            shown += drawn.step->vertical;
        curve.places.push_back({number * frame * milliseconds, shown / pixels});
        if (drawn.isDrained)
            break;
    }
    return curve;
}

Diagram smoothScrollDiagram()
{
    return {"Way of a smooth scroll", "ms", "share shown", 1000, 1,
        {
            smoothScroll("0.05 s", 0.05),
            smoothScroll("0.18 s, as at first", 0.18),
            smoothScroll("0.4 s", 0.4),
        }};
}

Diagram spaceSwitchDiagram()
{
    constexpr int steps = 44;
    Curve curve{"a circle that opens", {}};
    for (int step = 0; step <= steps; ++step) {
        const double share = double(step) / steps;
        curve.places.push_back(
            {share * SpaceSwitcher::animationDuration * milliseconds, spaceSwitchProgress(share)});
    }
    return {"Way of a switch between spaces", "ms", "share",
        SpaceSwitcher::animationDuration * milliseconds, 1, {std::move(curve)}};
}

} // namespace

std::vector<Diagram> mouseCurves()
{
    return {accelerationDiagram(), smoothScrollDiagram(), spaceSwitchDiagram()};
}

} // namespace brindlex
