#include "mouse/ExpectedArrivals.h"

#include "platform/linux/input/SystemKeystroke.h"
#include "platform/linux/input/VirtualKeyCodes.h"
#include "platform/linux/x11/X11Buttons.h"

#include <array>
#include <cstdlib>

namespace brindlex {
namespace {

/// In the order of `EventLogWindow`.
std::string withModifiers(std::string line, std::uint64_t flags)
{
    constexpr std::array names{std::pair{eventFlag::shift, "shift"},
        std::pair{eventFlag::capsLock, "lock"}, std::pair{eventFlag::control, "control"},
        std::pair{eventFlag::option, "alt"}, std::pair{eventFlag::command, "super"}};
    std::string held;
    for (const auto& [flag, name] : names)
        if ((flags & flag) != 0)
            held += (held.empty() ? "" : " ") + std::string(name);
    return held.empty() ? line : line + " (" + held + ")";
}

std::string buttonLine(bool isPress, std::uint8_t button, std::uint64_t flags)
{
    return withModifiers((isPress ? "press " : "release ") + std::to_string(button), flags);
}

} // namespace

void ExpectedArrivals::press(
    int mouse, std::int64_t button, std::uint64_t flags, EventVerdict verdict)
{
    const bool arrives = verdict == EventVerdict::pass;
    pressesThatArrived_[{mouse, button}] = arrives;
    if (arrives)
        lines_.push_back(buttonLine(true, buttonOfNumber(button), flags));
}

void ExpectedArrivals::release(int mouse, std::int64_t button, std::uint64_t flags)
{
    if (std::exchange(pressesThatArrived_[{mouse, button}], false))
        lines_.push_back(buttonLine(false, buttonOfNumber(button), flags));
}

void ExpectedArrivals::turnWheel(
    std::int64_t vertical, std::int64_t horizontal, std::uint64_t flags)
{
    const auto turn = [&](std::int64_t lines, std::uint8_t positive, std::uint8_t negative) {
        for (std::int64_t count = 0; count < std::abs(lines); ++count) {
            const auto button = lines > 0 ? positive : negative;
            lines_.push_back(buttonLine(true, button, flags));
            lines_.push_back(buttonLine(false, button, flags));
        }
    };
    turn(vertical, wheelUp, wheelDown);
    turn(horizontal, wheelLeft, wheelRight);
}

void ExpectedArrivals::post(
    const RecordedInput::Posted& posted, std::uint64_t heldFlags, Seconds now)
{
    match(
        posted, [&](const SyntheticEvent& event) { postEvent(event, heldFlags); },
        [&](const RecordedInput::AnnouncedScroll& scroll) {
            scrollFlags_ = scroll.flags;
            turnPosted(vertical_.announce(scroll.distance.vertical, now),
                horizontal_.announce(scroll.distance.horizontal, now), scrollFlags_);
        },
        [&](RecordedInput::FinishedScroll) {
            turnPosted(vertical_.finish(), horizontal_.finish(), scrollFlags_);
        });
}

void ExpectedArrivals::postEvent(const SyntheticEvent& event, std::uint64_t heldFlags)
{
    const auto flags = event.flags.value_or(heldFlags);
    if (isMouseDown(event.type) || isMouseUp(event.type)) {
        const auto number = event.fields.value(EventField::mouseEventButtonNumber);
        lines_.push_back(buttonLine(isMouseDown(event.type), buttonOfNumber(number), flags));
    } else if (event.type == EventType::keyDown || event.type == EventType::keyUp) {
        postKey(event, flags);
    } else if (event.type == EventType::scrollWheel) {
        postScroll(event, flags);
    }
}

void ExpectedArrivals::postKey(const SyntheticEvent& event, std::uint64_t flags)
{
    const auto keystroke
        = systemKeystroke(event.fields.value(EventField::keyboardEventKeycode), flags);
    const bool isPress = event.type == EventType::keyDown;
    if (keystroke.meaning == SystemKeystroke::Meaning::button)
        lines_.push_back(buttonLine(isPress, buttonOfNumber(keystroke.number), keystroke.flags));
    if (keystroke.meaning != SystemKeystroke::Meaning::key)
        return;
    const auto key = std::to_string(keycodesOf(keystroke.number).front());
    lines_.push_back(withModifiers("key " + key + (isPress ? " down" : " up"), keystroke.flags));
}

void ExpectedArrivals::postScroll(const SyntheticEvent& event, std::uint64_t flags)
{
    const auto pixels
        = [&](EventField field) { return static_cast<double>(event.fields.value(field)); };
    const int up = vertical_.post(pixels(EventField::scrollWheelEventPointDeltaAxis1));
    const int left = horizontal_.post(pixels(EventField::scrollWheelEventPointDeltaAxis2));
    turnPosted(up, left, flags);
}

void ExpectedArrivals::turnPosted(int up, int left, std::uint64_t flags)
{
    // What is turned with Shift the application turns sideways itself.
    if (up == 0 && (flags & eventFlag::shift) != 0)
        std::swap(up, left);
    turnWheel(up, left, left != 0 ? flags & ~eventFlag::shift : flags);
}

} // namespace brindlex
