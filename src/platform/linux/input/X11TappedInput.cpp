#include "platform/linux/input/X11TappedInput.h"

#include "platform/linux/input/VirtualKeyCodes.h"
#include "platform/linux/x11/X11Buttons.h"

#include <cmath>
#include <utility>

namespace brindlex {
namespace {

using Kind = PressLedger::Kind;

constexpr EventMask motions = eventMask(EventType::mouseMoved)
    | eventMask(EventType::leftMouseDragged) | eventMask(EventType::rightMouseDragged)
    | eventMask(EventType::otherMouseDragged);

/// The whole part of a distance; the rest stays.
int takeWholePixels(double& distance)
{
    const double whole = std::trunc(distance);
    distance -= whole;
    return static_cast<int>(whole);
}

} // namespace

X11TappedInput::X11TappedInput(
    TapChain& taps, const X11DeviceGrabs& grabs, X11Injection& injection, Hooks hooks)
    : taps_(taps), grabs_(grabs), injection_(injection), hooks_(std::move(hooks))
{
}

void X11TappedInput::receive(const X11InputEvent::Button& event)
{
    if (isWheel(event.button)) {
        if (event.isPress)
            turnWheel(event.button);
        return;
    }
    const auto number = buttonNumber(event.button);
    const EventFields fields{{EventField::mouseEventButtonNumber, number}};
    auto& held = heldButtons_[event.device];
    const bool takesDevice = event.isPress && held.empty() && !grabs_.isTaken(event.device);
    if (takesDevice)
        injection_.takeCursor();
    if (event.isPress)
        held.insert(number);
    else
        held.erase(number);

    const auto type = event.isPress ? downTypeOf(number) : upTypeOf(number);
    if (takesDevice) {
        const auto verdict = taps_.offer({type, event.location, event.flags, fields});
        pressed(event.device, Kind::button, event.button, verdict);
    } else if (event.isPress) {
        pressed(event.device, Kind::button, event.button, offer(type, fields));
    } else {
        // Its way is decided, so that the application need not wait for the question where the
        // cursor is.
        released(event.device, Kind::button, event.button);
        offer(type, fields);
    }
    hooks_.eventDone();
}

void X11TappedInput::turnWheel(std::uint8_t button)
{
    const std::int64_t vertical = button == wheelUp ? 1 : button == wheelDown ? -1 : 0;
    const std::int64_t horizontal = button == wheelLeft ? 1 : button == wheelRight ? -1 : 0;
    const auto verdict = offer(EventType::scrollWheel,
        {{EventField::scrollWheelEventDeltaAxis1, vertical},
            {EventField::scrollWheelEventDeltaAxis2, horizontal}});
    if (verdict == EventVerdict::pass)
        injection_.turnWheel(button);
    hooks_.eventDone();
}

void X11TappedInput::receive(const X11InputEvent::Key& event)
{
    const auto code = virtualKeyCode(event.keycode);
    const auto modifier = modifierFlagOf(code);
    const auto type = modifier != 0 ? EventType::flagsChanged
        : event.isPress             ? EventType::keyDown
                                    : EventType::keyUp;
    auto verdict = EventVerdict::pass;
    if (taps_.sees(eventMask(type))) {
        EventFields fields{{EventField::keyboardEventKeycode, code}};
        if (event.isRepeat)
            fields.set(EventField::keyboardEventAutorepeat, 1);
        const auto cursor = hooks_.cursor();
        // A modifier counts from its own event on; Caps Lock only switches.
        const auto held = modifier & ~eventFlag::capsLock;
        const auto flags = event.isPress ? cursor.flags | held : cursor.flags & ~held;
        verdict = taps_.offer({type, cursor.location, flags, fields});
    }
    if (!event.isPress)
        released(event.device, Kind::key, event.keycode);
    else if (!event.isRepeat)
        pressed(event.device, Kind::key, event.keycode, verdict);
    hooks_.eventDone();
}

void X11TappedInput::receive(const X11InputEvent::Motion& event)
{
    // What is less than a pixel is kept for the next motion.
    auto& remainder = remainders_[event.device];
    remainder.x += event.x;
    remainder.y += event.y;
    const int x = takeWholePixels(remainder.x);
    const int y = takeWholePixels(remainder.y);
    if (x == 0 && y == 0)
        return;
    injection_.moveBy(x, y);
    offerMotion(event.device);
}

void X11TappedInput::receive(const X11InputEvent::Place& event)
{
    injection_.moveTo(static_cast<int>(std::lround(event.location.x)),
        static_cast<int>(std::lround(event.location.y)));
    offerMotion(event.device);
}

void X11TappedInput::receive(const X11InputEvent::FreeRelease& event)
{
    if (event.kind == Kind::button)
        heldButtons_[event.device].erase(buttonNumber(event.code));
    if (ledger_.isOpen(event.device, event.kind, event.code))
        released(event.device, event.kind, event.code);
}

void X11TappedInput::lose(std::uint16_t device)
{
    for (const auto& press : ledger_.forget(device))
        injection_.release(press.kind, static_cast<std::uint8_t>(press.code));
    remainders_.erase(device);
    heldButtons_.erase(device);
}

void X11TappedInput::offerMotion(std::uint16_t device)
{
    if (!taps_.sees(motions))
        return;
    const auto& held = heldButtons_[device];
    if (held.empty())
        offer(EventType::mouseMoved, {});
    else
        offer(dragTypeOf(*held.begin()), {{EventField::mouseEventButtonNumber, *held.begin()}});
    hooks_.eventDone();
}

EventVerdict X11TappedInput::offer(EventType type, EventFields fields)
{
    if (!taps_.sees(eventMask(type)))
        return EventVerdict::pass;
    const auto cursor = hooks_.cursor();
    return taps_.offer({type, cursor.location, cursor.flags, fields});
}

void X11TappedInput::pressed(
    std::uint16_t device, Kind kind, std::uint8_t code, EventVerdict verdict)
{
    // A second press without a release in between presses nothing.
    if (ledger_.isOpen(device, kind, code))
        return;
    const bool goesOn = verdict == EventVerdict::pass;
    ledger_.pressed(device, kind, code, goesOn);
    if (goesOn)
        injection_.press(kind, code);
}

void X11TappedInput::released(std::uint16_t device, Kind kind, std::uint8_t code)
{
    if (ledger_.released(device, kind, code))
        injection_.release(kind, code);
    if (ledger_.isEmpty())
        hooks_.allReleased();
}

} // namespace brindlex
