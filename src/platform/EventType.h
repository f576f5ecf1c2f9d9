#pragma once

#include <cstdint>

namespace brindlex {

/// What happened, by the numbers of CoreGraphics' `CGEventType`, which hold on every system.
enum class EventType : std::uint32_t {
    leftMouseDown = 1,
    leftMouseUp = 2,
    rightMouseDown = 3,
    rightMouseUp = 4,
    mouseMoved = 5,
    leftMouseDragged = 6,
    rightMouseDragged = 7,
    keyDown = 10,
    keyUp = 11,
    flagsChanged = 12,
    scrollWheel = 22,
    otherMouseDown = 25,
    otherMouseUp = 26,
    otherMouseDragged = 27,
    gesture = 29,
    dockGesture = 30,
    tapDisabledByTimeout = 0xFFFFFFFE,
    tapDisabledByUserInput = 0xFFFFFFFF,
};

/// A set of event types: bit n stands for the type of number n.
using EventMask = std::uint64_t;

/// The mask of one type alone; nothing for a type that no mask can hold.
constexpr EventMask eventMask(EventType type)
{
    const auto number = static_cast<std::uint32_t>(type);
    return number < 64 ? EventMask{1} << number : 0;
}

constexpr bool isMouseDown(EventType type)
{
    return type == EventType::leftMouseDown || type == EventType::rightMouseDown
        || type == EventType::otherMouseDown;
}

constexpr bool isMouseUp(EventType type)
{
    return type == EventType::leftMouseUp || type == EventType::rightMouseUp
        || type == EventType::otherMouseUp;
}

constexpr bool isMouseDragged(EventType type)
{
    return type == EventType::leftMouseDragged || type == EventType::rightMouseDragged
        || type == EventType::otherMouseDragged;
}

} // namespace brindlex
