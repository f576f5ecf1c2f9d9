#include "platform/linux/input/X11EventPosting.h"

#include "platform/linux/input/SystemKeystroke.h"
#include "platform/linux/input/VirtualKeyCodes.h"
#include "platform/linux/windows/VirtualDesktops.h"
#include "platform/linux/x11/X11Buttons.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace brindlex {
namespace {

using Kind = X11Injection::Kind;
using Meaning = SystemKeystroke::Meaning;

bool isKey(EventType type)
{
    return type == EventType::keyDown || type == EventType::keyUp
        || type == EventType::flagsChanged;
}

bool isButton(EventType type) { return isMouseDown(type) || isMouseUp(type); }

bool isMotion(EventType type) { return isMouseDragged(type) || type == EventType::mouseMoved; }

std::int64_t keyCodeOf(const SyntheticEvent& event)
{
    return event.fields.value(EventField::keyboardEventKeycode);
}

std::int64_t buttonOf(const SyntheticEvent& event)
{
    return event.fields.value(EventField::mouseEventButtonNumber);
}

bool canBeMade(const SyntheticEvent& event)
{
    if (isKey(event.type))
        return !keycodesOf(keyCodeOf(event)).empty();
    if (isButton(event.type))
        return buttonOfNumber(buttonOf(event)) != 0;
    return isMotion(event.type) || event.type == EventType::scrollWheel
        || event.type == EventType::gesture || event.type == EventType::dockGesture;
}

/// Applications turn the wheel sideways themselves while Shift is held, and what goes sideways
/// already back again, or into nothing.
SyntheticEvent withoutShift(SyntheticEvent event)
{
    if (event.flags)
        event.flags = *event.flags & ~eventFlag::shift;
    return event;
}

double pixelsOf(const SyntheticEvent& event, EventField pixels, EventField lines)
{
    const auto given = static_cast<double>(event.fields.value(pixels));
    const auto inLines = static_cast<double>(event.fields.value(lines));
    return given != 0 ? given : inLines * WheelTicks::pixelsPerNotch;
}

} // namespace

bool X11EventPosting::post(const SyntheticEvent& event)
{
    if (!canBeMade(event) || !stream_.session())
        return false;
    stream_.inTurn([this, event] { deliver(event); });
    return true;
}

void X11EventPosting::announceScroll(std::uint64_t flags, ScrollDistance distance)
{
    stream_.inTurn([this, flags, distance] {
        const auto now = clock_.continuousTime();
        scrollFlags_ = flags;
        turnAnnounced(vertical_.announce(distance.vertical, now),
            horizontal_.announce(distance.horizontal, now));
    });
}

void X11EventPosting::finishScroll()
{
    stream_.inTurn([this] { turnAnnounced(vertical_.finish(), horizontal_.finish()); });
}

void X11EventPosting::turnAnnounced(int up, int left)
{
    auto* session = stream_.session();
    if (!session || (up == 0 && left == 0))
        return;
    forgetEarlierSession();
    turnWheel(*session, {.type = EventType::scrollWheel, .flags = scrollFlags_}, up, left);
    xcb_flush(session->connection().get());
}

void X11EventPosting::deliver(const SyntheticEvent& event)
{
    auto* session = stream_.session();
    if (!session)
        return;
    forgetEarlierSession();
    auto verdict = EventVerdict::pass;
    if (stream_.taps().sees(eventMask(event.type))) {
        const auto cursor = event.location && event.flags ? X11CursorState{} : session->cursor();
        verdict = stream_.taps().offer(event.asPosted(cursor.location, cursor.flags));
        session = stream_.session();
    }
    if (!session)
        return;
    if (goesOn(event, verdict == EventVerdict::pass))
        play(*session, event);
    xcb_flush(session->connection().get());
}

void X11EventPosting::forgetEarlierSession()
{
    // What was held through an earlier connection went with it.
    if (std::exchange(sessionNumber_, stream_.sessionCount()) == stream_.sessionCount())
        return;
    modifiers_.forget();
    presses_ = {};
}

bool X11EventPosting::goesOn(const SyntheticEvent& event, bool passes)
{
    const auto press = isKey(event.type) ? PressLedger::Press{Kind::key, keyCodeOf(event)}
                                         : PressLedger::Press{Kind::button, buttonOf(event)};
    if (isMouseDown(event.type) || event.type == EventType::keyDown)
        return presses_.pressed(press, passes);
    if (isMouseUp(event.type) || event.type == EventType::keyUp)
        return presses_.released(press, passes);
    return passes;
}

void X11EventPosting::play(X11TapSession& session, const SyntheticEvent& event)
{
    if (isButton(event.type)) {
        playButton(session, event);
    } else if (isKey(event.type)) {
        playKey(session, event);
    } else if (event.type == EventType::scrollWheel) {
        playScroll(session, event);
    } else if (isMotion(event.type)) {
        moveTo(session, event);
    } else if (const auto direction = dock_.read(event)) {
        switchDesktop(
            session.connection(), *direction == DockSwipeReader::Direction::right ? 1 : -1);
    }
}

void X11EventPosting::playButton(X11TapSession& session, const SyntheticEvent& event)
{
    moveTo(session, event);
    holdExactly(session, event);
    playButton(session, buttonOf(event), isMouseDown(event.type));
}

void X11EventPosting::playButton(X11TapSession& session, std::int64_t number, bool isPress)
{
    const auto buttons = session.pointerMap().buttonsFor(buttonOfNumber(number));
    if (buttons.empty())
        return;
    if (isPress)
        session.injection().press(Kind::button, buttons.front());
    else
        session.injection().release(Kind::button, buttons.front());
}

void X11EventPosting::playKey(X11TapSession& session, const SyntheticEvent& event)
{
    const auto keystroke = event.flags ? systemKeystroke(keyCodeOf(event), *event.flags)
                                       : SystemKeystroke{Meaning::key, keyCodeOf(event), 0};
    const bool isDown = event.type != EventType::keyUp;
    if (keystroke.meaning == Meaning::button) {
        auto posted = event;
        posted.flags = keystroke.flags;
        holdExactly(session, posted);
        return playButton(session, keystroke.number, isDown);
    }
    if (keystroke.meaning == Meaning::showDesktop) {
        if (isDown)
            toggleShowingDesktop(session.connection());
        return;
    }
    auto posted = event;
    if (event.flags)
        posted.flags = keystroke.flags;
    const auto code = keycodesOf(keystroke.number).front();
    holdExactly(session, posted);
    if (isDown)
        session.injection().press(Kind::key, code);
    else
        session.injection().release(Kind::key, code);
}

void X11EventPosting::playScroll(X11TapSession& session, const SyntheticEvent& event)
{
    turnWheel(session, event,
        vertical_.post(pixelsOf(event, EventField::scrollWheelEventPointDeltaAxis1,
            EventField::scrollWheelEventDeltaAxis1)),
        horizontal_.post(pixelsOf(event, EventField::scrollWheelEventPointDeltaAxis2,
            EventField::scrollWheelEventDeltaAxis2)));
}

void X11EventPosting::turnWheel(
    X11TapSession& session, const SyntheticEvent& event, int up, int left)
{
    if (up == 0 && left == 0)
        return;
    moveTo(session, event);
    // What is turned with Shift the application turns sideways itself.
    if (up == 0 && (event.flags.value_or(0) & eventFlag::shift) != 0)
        std::swap(up, left);
    holdExactly(session, left != 0 ? withoutShift(event) : event);
    turnWheel(session, up > 0 ? wheelUp : wheelDown, std::abs(up));
    turnWheel(session, left > 0 ? wheelLeft : wheelRight, std::abs(left));
    // At once, as the next notch of the hand is to be seen with the Shift that it holds.
    if (left != 0)
        modifiers_.restore(session);
}

void X11EventPosting::turnWheel(X11TapSession& session, std::uint8_t direction, int notches)
{
    const auto buttons = session.pointerMap().buttonsFor(direction);
    for (int count = 0; count < notches && !buttons.empty(); ++count)
        session.injection().turnWheel(buttons.front());
}

void X11EventPosting::moveTo(X11TapSession& session, const SyntheticEvent& event)
{
    if (!event.location)
        return;
    const auto cursor = session.cursor().location;
    const double x = std::floor(event.location->x);
    const double y = std::floor(event.location->y);
    if (x != std::floor(cursor.x) || y != std::floor(cursor.y))
        session.injection().moveTo(static_cast<int>(x), static_cast<int>(y));
}

void X11EventPosting::holdExactly(X11TapSession& session, const SyntheticEvent& event)
{
    if (!event.flags) {
        modifiers_.restore(session);
        return;
    }
    // A press and its release share what is held for them.
    if (!modifiers_.isHolding() || modifiers_.flags() != *event.flags)
        modifiers_.hold(session, *event.flags);
    restoreSoon();
}

void X11EventPosting::restoreSoon()
{
    nextRestore_ = mainThread_.after(0, [this] {
        if (auto* session = stream_.session();
            session && stream_.sessionCount() == sessionNumber_) {
            modifiers_.restore(*session);
            xcb_flush(session->connection().get());
        }
    });
}

} // namespace brindlex
