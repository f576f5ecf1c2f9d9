#include "mouse/MouseClick.h"

#include "mouse/MouseEventTag.h"

#include <cstddef>

namespace brindlex {
namespace {

const MouseClickBinding* findBinding(
    const MouseClickConfig& config, MouseButton button, ModifierSet modifiers)
{
    for (const auto& binding : config.bindings)
        if (binding.button == button && binding.modifiers == modifiers)
            return &binding;
    return nullptr;
}

} // namespace

MouseClickOutcome reduceMouseClick(
    const Event& event, MouseClickState& state, const MouseClickConfig& config)
{
    const auto button = mouseButtonWithNumber(event.value(EventField::mouseEventButtonNumber));
    if (!button)
        return {};
    const auto number = static_cast<std::size_t>(storedValue(*button));
    const bool isReplay = event.value(EventField::eventSourceUserData) == mouseEventTag::replay;
    if (event.type == EventType::otherMouseUp) {
        const bool wasSwallowed = !isReplay && state.swallowedDownButtons.test(number);
        if (wasSwallowed)
            state.swallowedDownButtons.reset(number);
        return {wasSwallowed ? EventVerdict::swallow : EventVerdict::pass, {}};
    }
    if (event.type != EventType::otherMouseDown)
        return {};
    const auto* binding = findBinding(config, *button, ModifierSet::fromEventFlags(event.flags));
    if (!binding)
        return {};
    if (isReplay)
        return {EventVerdict::pass, binding->action};
    state.swallowedDownButtons.set(number);
    return {EventVerdict::swallow, binding->action};
}

EventTriggers eventTriggers(const MouseClickConfig& config)
{
    EventTriggers triggers;
    for (const auto& binding : config.bindings)
        if (binding.button != MouseButton::left && binding.button != MouseButton::right)
            triggers.buttons.push_back(
                {storedValue(binding.button), binding.modifiers.eventFlags()});
    return triggers;
}

} // namespace brindlex
