#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace brindlex {

/// The values that the sliders of the scrolling offer: seconds, factors, and parts of the whole.
inline constexpr std::array durationSteps{0.05, 0.08, 0.1, 0.15, 0.18, 0.2, 0.25, 0.3, 0.35, 0.4};
inline constexpr std::array speedSteps{0.5, 0.75, 1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 2.5, 3.0};
inline constexpr std::array accelerationSteps{0.0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.85, 1.0};

/// Where the value nearest to this one stands, the first of two that are equally near; 0 for fewer
/// than two steps.
std::size_t nearestStep(std::span<const double> steps, double value);

/// "180 ms".
std::string durationText(double seconds);
/// "1.25x".
std::string speedText(double factor);
/// "70%".
std::string accelerationText(double part);

} // namespace brindlex
