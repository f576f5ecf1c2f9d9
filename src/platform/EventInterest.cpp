#include "platform/EventInterest.h"

#include <algorithm>

namespace brindlex {
namespace {

bool matches(const EventTriggers::Button& button, const Event& event)
{
    return button.number == event.value(EventField::mouseEventButtonNumber)
        && (!button.modifierFlags || *button.modifierFlags == (event.flags & eventFlag::modifiers));
}

bool matches(const EventTriggers::Key& key, const Event& event)
{
    return key.keyCode == event.value(EventField::keyboardEventKeycode)
        && key.modifierFlags == (event.flags & eventFlag::modifiers);
}

} // namespace

bool isTrigger(const Event& event, const EventInterest& interest)
{
    if ((interest.mask & eventMask(event.type)) == 0)
        return false;
    if (!interest.triggers)
        return true;
    const auto matchesEvent = [&](const auto& trigger) { return matches(trigger, event); };
    if (isMouseDown(event.type))
        return std::ranges::any_of(interest.triggers->buttons, matchesEvent);
    if (event.type == EventType::keyDown)
        return std::ranges::any_of(interest.triggers->keys, matchesEvent);
    return event.type == EventType::scrollWheel && interest.triggers->wheel;
}

} // namespace brindlex
