#include "platform/simulated/SimulatedMouse.h"

namespace brindlex {
namespace {

EventType typeFor(std::int64_t button, EventType left, EventType right, EventType other)
{
    return button == 0 ? left : button == 1 ? right : other;
}

EventFields buttonFields(std::int64_t button)
{
    return {{EventField::mouseEventButtonNumber, button}};
}

} // namespace

EventVerdict SimulatedMouse::press(std::int64_t button)
{
    heldButtons_.insert(button);
    return send(typeFor(button, EventType::leftMouseDown, EventType::rightMouseDown,
                    EventType::otherMouseDown),
        buttonFields(button));
}

EventVerdict SimulatedMouse::release(std::int64_t button)
{
    heldButtons_.erase(button);
    return send(
        typeFor(button, EventType::leftMouseUp, EventType::rightMouseUp, EventType::otherMouseUp),
        buttonFields(button));
}

EventVerdict SimulatedMouse::moveTo(Point point)
{
    input_.cursor = point;
    if (heldButtons_.empty())
        return send(EventType::mouseMoved, {});
    const auto button = *heldButtons_.begin();
    return send(typeFor(button, EventType::leftMouseDragged, EventType::rightMouseDragged,
                    EventType::otherMouseDragged),
        buttonFields(button));
}

EventVerdict SimulatedMouse::scroll(std::int64_t vertical, std::int64_t horizontal)
{
    return send(EventType::scrollWheel,
        {{EventField::scrollWheelEventDeltaAxis1, vertical},
            {EventField::scrollWheelEventDeltaAxis2, horizontal}});
}

EventVerdict SimulatedMouse::scrollContinuously(std::int64_t vertical, std::int64_t horizontal)
{
    return send(EventType::scrollWheel,
        {{EventField::scrollWheelEventIsContinuous, 1},
            {EventField::scrollWheelEventPointDeltaAxis1, vertical},
            {EventField::scrollWheelEventPointDeltaAxis2, horizontal}});
}

EventVerdict SimulatedMouse::send(EventType type, EventFields fields)
{
    return input_.send(device_, {type, input_.cursor, input_.heldFlags, fields});
}

} // namespace brindlex
