#pragma once

#include <cstdint>

namespace brindlex {

/// X counts the wheel's directions as buttons: up, down, left, right.
constexpr std::uint8_t wheelUp = 4;
constexpr std::uint8_t wheelDown = 5;
constexpr std::uint8_t wheelLeft = 6;
constexpr std::uint8_t wheelRight = 7;

constexpr bool isWheel(std::uint32_t button) { return button >= wheelUp && button <= wheelRight; }

/// The number of an event's button for that of X, which counts left, middle, right, the wheel,
/// back, forward.
constexpr std::int64_t buttonNumber(std::uint32_t button)
{
    switch (button) {
    case 1:
        return 0;
    case 2:
        return 2;
    case 3:
        return 1;
    default:
        return static_cast<std::int64_t>(button) - 5;
    }
}

/// X's button for the number of an event's; 0 for a number of none.
constexpr std::uint8_t buttonOfNumber(std::int64_t number)
{
    switch (number) {
    case 0:
        return 1;
    case 1:
        return 3;
    case 2:
        return 2;
    default:
        return number > 0 && number <= 250 ? static_cast<std::uint8_t>(number + 5) : 0;
    }
}

/// Lines of a wheel, positive up and to the left.
struct WheelLines {
    std::int64_t vertical = 0;
    std::int64_t horizontal = 0;

    bool operator==(const WheelLines&) const = default;
};

/// What one press of a button of the wheel turns; nothing for any other button.
constexpr WheelLines wheelLinesOf(std::uint32_t button)
{
    switch (button) {
    case wheelUp:
        return {1, 0};
    case wheelDown:
        return {-1, 0};
    case wheelLeft:
        return {0, 1};
    case wheelRight:
        return {0, -1};
    default:
        return {};
    }
}

} // namespace brindlex
