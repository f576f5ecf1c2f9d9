#pragma once

#include <concepts>
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

/// The mask of several types together.
template <std::same_as<EventType>... More>
constexpr EventMask eventMask(EventType type, More... more)
{
    return (eventMask(type) | ... | eventMask(more));
}

inline constexpr EventMask mouseDownMask
    = eventMask(EventType::leftMouseDown, EventType::rightMouseDown, EventType::otherMouseDown);
inline constexpr EventMask mouseUpMask
    = eventMask(EventType::leftMouseUp, EventType::rightMouseUp, EventType::otherMouseUp);
inline constexpr EventMask mouseDraggedMask = eventMask(
    EventType::leftMouseDragged, EventType::rightMouseDragged, EventType::otherMouseDragged);
/// All that depends on the buttons of a mouse.
inline constexpr EventMask mouseButtonMask = mouseDownMask | mouseUpMask | mouseDraggedMask;
/// All keys but the modifiers.
inline constexpr EventMask keyMask = eventMask(EventType::keyDown, EventType::keyUp);

constexpr bool isMouseDown(EventType type) { return (mouseDownMask & eventMask(type)) != 0; }

constexpr bool isMouseUp(EventType type) { return (mouseUpMask & eventMask(type)) != 0; }

constexpr bool isMouseDragged(EventType type) { return (mouseDraggedMask & eventMask(type)) != 0; }

/// The types of the events of one button, by its number: 0 is the left one, 1 the right one, and
/// all that follow are others.
constexpr EventType mouseDownType(std::int64_t button)
{
    return button == 0 ? EventType::leftMouseDown
        : button == 1  ? EventType::rightMouseDown
                       : EventType::otherMouseDown;
}

constexpr EventType mouseUpType(std::int64_t button)
{
    return button == 0 ? EventType::leftMouseUp
        : button == 1  ? EventType::rightMouseUp
                       : EventType::otherMouseUp;
}

constexpr EventType mouseDraggedType(std::int64_t button)
{
    return button == 0 ? EventType::leftMouseDragged
        : button == 1  ? EventType::rightMouseDragged
                       : EventType::otherMouseDragged;
}

/// The press, the release and the drags of one button, by its number.
constexpr EventMask mouseButtonMaskOf(std::int64_t button)
{
    return eventMask(mouseDownType(button), mouseUpType(button), mouseDraggedType(button));
}

} // namespace brindlex
