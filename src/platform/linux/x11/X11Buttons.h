#pragma once

#include "platform/EventType.h"

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

/// Which of the three events of one kind a button has.
constexpr EventType eventTypeFor(
    std::int64_t number, EventType left, EventType right, EventType other)
{
    return number == 0 ? left : number == 1 ? right : other;
}

constexpr EventType downTypeOf(std::int64_t number)
{
    return eventTypeFor(
        number, EventType::leftMouseDown, EventType::rightMouseDown, EventType::otherMouseDown);
}

constexpr EventType upTypeOf(std::int64_t number)
{
    return eventTypeFor(
        number, EventType::leftMouseUp, EventType::rightMouseUp, EventType::otherMouseUp);
}

constexpr EventType dragTypeOf(std::int64_t number)
{
    return eventTypeFor(number, EventType::leftMouseDragged, EventType::rightMouseDragged,
        EventType::otherMouseDragged);
}

} // namespace brindlex
