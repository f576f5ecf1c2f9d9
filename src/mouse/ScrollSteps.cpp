#include "mouse/ScrollSteps.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace brindlex {

std::size_t nearestStep(std::span<const double> steps, double value)
{
    std::size_t nearest = 0;
    for (std::size_t index = 1; index < steps.size(); ++index)
        if (std::abs(steps[index] - value) < std::abs(steps[nearest] - value))
            nearest = index;
    return nearest;
}

std::string durationText(double seconds)
{
    return std::to_string(static_cast<std::int64_t>(seconds * 1000)) + " ms";
}

std::string speedText(double factor)
{
    // Not by printf, which writes a comma in some languages.
    char digits[32];
    const auto end
        = std::to_chars(std::begin(digits), std::end(digits), factor, std::chars_format::fixed, 2);
    return std::string(digits, end.ptr) + "x";
}

std::string accelerationText(double part) { return std::to_string(std::llround(part * 100)) + "%"; }

} // namespace brindlex
