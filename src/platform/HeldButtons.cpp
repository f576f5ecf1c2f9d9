#include "platform/HeldButtons.h"

namespace brindlex {

bool HeldButtons::press(std::int64_t button)
{
    const bool isFirst = numbers_.empty();
    numbers_.insert(button);
    return isFirst;
}

EventType HeldButtons::motionType() const
{
    return numbers_.empty() ? EventType::mouseMoved : mouseDraggedType(*numbers_.begin());
}

EventFields HeldButtons::motionFields() const
{
    if (numbers_.empty())
        return {};
    return {{EventField::mouseEventButtonNumber, *numbers_.begin()}};
}

} // namespace brindlex
