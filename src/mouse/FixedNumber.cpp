#include "mouse/FixedNumber.h"

#include <array>
#include <charconv>
#include <limits>

namespace brindlex {

std::string oneDecimal(double number)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 8> text{};
    const auto written = std::to_chars(
        text.data(), text.data() + text.size(), number, std::chars_format::fixed, 1);
    return {text.data(), written.ptr};
}

std::string oneDecimal(Point point) { return oneDecimal(point.x) + "," + oneDecimal(point.y); }

} // namespace brindlex
