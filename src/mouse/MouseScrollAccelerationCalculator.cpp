#include "mouse/MouseScrollAccelerationCalculator.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brindlex {
namespace {

/// Notches closer together than this feed the time term.
constexpr Seconds rapidInterval = 0.08;
/// The time constant of the momentum's decay.
constexpr Seconds momentumDecay = 0.18;
/// The weight of the size of a step.
constexpr double magnitudeGain = 0.35;
constexpr double upwardWeight = 1.6;
/// How steeply the curve saturates.
constexpr double momentumGain = 0.5;
/// By how much the factor can exceed 1, times the strength.
constexpr double accelerationRange = 2.0;

} // namespace

double MouseScrollAccelerationCalculator::factor(
    double vertical, double horizontal, double rawVertical, double strength, Seconds now)
{
    if (!(strength > 0)) {
        *this = {};
        return 1.0;
    }
    const Seconds elapsed = lastWheelTimestamp == 0 ? std::numeric_limits<Seconds>::infinity()
                                                    : now - lastWheelTimestamp;
    lastWheelTimestamp = now;
    const double magnitude = std::max(std::abs(vertical), std::abs(horizontal));
    const double weight = rawVertical > 0 ? upwardWeight : 1.0;
    const double sizeTerm = magnitude < 1 ? 0 : (magnitude - 1) * magnitudeGain;
    double timeTerm = 0;
    double decay = 0;
    if (std::isfinite(elapsed)) {
        timeTerm = std::max((rapidInterval - elapsed) / rapidInterval, 0.0);
        decay = std::exp(elapsed / -momentumDecay);
    }
    accelerationMomentum = decay * accelerationMomentum + weight * (sizeTerm + timeTerm);
    return 1
        + accelerationRange * std::min(strength, 1.0)
        * (1 - std::exp(-momentumGain * accelerationMomentum));
}

} // namespace brindlex
