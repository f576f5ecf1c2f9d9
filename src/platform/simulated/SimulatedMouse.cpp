#include "platform/simulated/SimulatedMouse.h"

namespace brindlex {
namespace {

EventFields buttonFields(std::int64_t button)
{
    return {{EventField::mouseEventButtonNumber, button}};
}

} // namespace

EventVerdict SimulatedMouse::press(std::int64_t button)
{
    held_.press(button);
    return send(mouseDownType(button), buttonFields(button));
}

EventVerdict SimulatedMouse::release(std::int64_t button)
{
    held_.release(button);
    return send(mouseUpType(button), buttonFields(button));
}

EventVerdict SimulatedMouse::moveTo(Point point)
{
    input_.cursor = point;
    return send(held_.motionType(), held_.motionFields());
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
