#include "platform/linux/input/X11TappedInput.h"

#include "platform/linux/input/X11KeyEvent.h"
#include "platform/linux/x11/X11Buttons.h"

#include <cmath>
#include <utility>

namespace brindlex {
namespace {

using Kind = PressLedger::Kind;

/// What a button is to the applications that is switched off.
constexpr std::uint8_t none = 0;

constexpr EventMask motions = mouseDraggedMask | eventMask(EventType::mouseMoved);

EventFields fieldsOf(std::int64_t number) { return {{EventField::mouseEventButtonNumber, number}}; }

/// What an application may take the modifiers to be for.
bool isForModifiers(EventType type) { return isMouseDown(type) || type == EventType::scrollWheel; }

} // namespace

X11TappedInput::X11TappedInput(
    TapChain& taps, const X11DeviceGrabs& grabs, X11Injection& injection, Hooks hooks)
    : taps_(taps), grabs_(grabs), injection_(injection), hooks_(std::move(hooks))
{
}

void X11TappedInput::receive(const X11InputEvent::Button& event)
{
    const auto meaning = map_.meaningOf(event.button);
    const bool isTurn = isWheel(meaning);
    if (isTurn && !event.isPress)
        return;
    if (isTurn)
        turnWheel(event.button, meaning);
    else if (event.isPress)
        press(event, meaning);
    else
        release(event);
    hooks_.eventDone();
}

void X11TappedInput::press(const X11InputEvent::Button& event, std::uint8_t meaning)
{
    if (meaning == none)
        return pressed(event.device, Kind::button, event.button, EventVerdict::pass);
    const auto number = buttonNumber(meaning);
    auto& mouse = mice_[event.device];
    mouse.meanings[event.button] = meaning;
    const bool isFirst = mouse.held.press(number);
    const bool takesDevice = isFirst && !grabs_.isTaken(event.device);
    if (takesDevice)
        injection_.takeCursor();
    const auto verdict = takesDevice
        ? offer({mouseDownType(number), event.location, event.flags, fieldsOf(number)})
        : offer(mouseDownType(number), fieldsOf(number));
    pressed(event.device, Kind::button, event.button, verdict);
}

void X11TappedInput::release(const X11InputEvent::Button& event)
{
    auto& mouse = mice_[event.device];
    const auto pressed = mouse.meanings.find(event.button);
    const auto meaning
        = pressed == mouse.meanings.end() ? map_.meaningOf(event.button) : pressed->second;
    letGo(mouse, event.button);
    // Its way is decided, so that the application need not wait for the place of the cursor.
    released(event.device, Kind::button, event.button);
    if (meaning != none)
        offer(mouseUpType(buttonNumber(meaning)), fieldsOf(buttonNumber(meaning)));
}

void X11TappedInput::turnWheel(std::uint8_t button, std::uint8_t meaning)
{
    const auto lines = wheelLinesOf(meaning);
    const auto verdict = offer(EventType::scrollWheel,
        {{EventField::scrollWheelEventDeltaAxis1, lines.vertical},
            {EventField::scrollWheelEventDeltaAxis2, lines.horizontal}});
    if (verdict == EventVerdict::pass)
        injection_.turnWheel(button);
}

void X11TappedInput::letGo(Mouse& mouse, std::uint8_t button)
{
    if (const auto meaning = mouse.meanings.find(button); meaning != mouse.meanings.end()) {
        mouse.held.release(buttonNumber(meaning->second));
        mouse.meanings.erase(meaning);
    }
}

void X11TappedInput::receive(const X11InputEvent::Key& event)
{
    auto verdict = EventVerdict::pass;
    if (taps_.sees(eventMask(eventTypeOf(event))))
        verdict = taps_.offer(eventOf(event, cursorAt(event)));
    if (!event.isPress)
        released(event.device, Kind::key, event.keycode);
    else if (!event.isRepeat)
        pressed(event.device, Kind::key, event.keycode, verdict);
    hooks_.eventDone();
}

/// The hand may have let go of the modifiers since it pressed the key of a hotkey.
X11CursorState X11TappedInput::cursorAt(const X11InputEvent::Key& event)
{
    auto cursor = hooks_.cursor();
    if (event.isPress && !grabs_.isTaken(event.device))
        cursor.flags |= event.flags;
    return cursor;
}

void X11TappedInput::receive(const X11InputEvent::Motion& event)
{
    const auto pixels = mice_[event.device].remainder.add(event.x, event.y);
    if (pixels.isNone())
        return;
    injection_.moveBy(pixels.x, pixels.y);
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
        letGo(mice_[event.device], event.code);
    if (ledger_.isOpen(event.device, event.kind, event.code))
        released(event.device, event.kind, event.code);
}

void X11TappedInput::lose(std::uint16_t device)
{
    for (const auto& press : ledger_.forget(device))
        injection_.release(press.kind, static_cast<std::uint8_t>(press.code));
    mice_.erase(device);
}

void X11TappedInput::offerMotion(std::uint16_t device)
{
    if (!taps_.sees(motions))
        return;
    const auto& held = mice_[device].held;
    offer(held.motionType(), held.motionFields());
    hooks_.eventDone();
}

EventVerdict X11TappedInput::offer(EventType type, EventFields fields)
{
    if (!taps_.sees(eventMask(type)))
        return EventVerdict::pass;
    const auto cursor = hooks_.cursor();
    return offer({type, cursor.location, cursor.flags, fields});
}

EventVerdict X11TappedInput::offer(const Event& event)
{
    const auto verdict = taps_.offer(event);
    if (verdict == EventVerdict::swallow && isForModifiers(event.type))
        hooks_.swallowed(event.flags);
    return verdict;
}

void X11TappedInput::pressed(
    std::uint16_t device, Kind kind, std::uint8_t code, EventVerdict verdict)
{
    if (ledger_.pressed(device, kind, code, verdict == EventVerdict::pass))
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
