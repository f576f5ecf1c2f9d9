#include "eventtap/KeyRecorder.h"

#include "platform/VirtualKey.h"

#include <utility>

namespace brindlex {

KeyRecorder::KeyRecorder(GlobalEventTap& tap, ProgramActivation& activation,
    std::function<void(const HotkeyCombo&)> recorded,
    std::function<bool(const HotkeyCombo&)> accepts)
    : tap_(tap), activation_(activation), recorded_(std::move(recorded)),
      accepts_(std::move(accepts))
{
}

void KeyRecorder::start()
{
    if (tapToken_)
        return;
    tapToken_ = tap_.subscribe(
        eventMask(EventType::keyDown), [this](const Event& event) { return receive(event); });
    recording_.set(true);
}

void KeyRecorder::stop()
{
    if (!tapToken_)
        return;
    tap_.unsubscribe(*std::exchange(tapToken_, std::nullopt));
    recording_.set(false);
}

void KeyRecorder::toggle()
{
    if (recording_.value())
        stop();
    else
        start();
}

EventVerdict KeyRecorder::receive(const Event& event)
{
    if (!activation_.isActive())
        return EventVerdict::pass;
    const HotkeyCombo combo{
        event.value(EventField::keyboardEventKeycode), ModifierSet::fromEventFlags(event.flags)};
    const bool isEscape = combo.keyCode == virtualKey::escape;
    if (!isEscape && accepts_ && !accepts_(combo))
        return EventVerdict::swallow;
    if (!isEscape)
        recorded_(combo);
    stop();
    return EventVerdict::swallow;
}

} // namespace brindlex
