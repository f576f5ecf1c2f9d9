#include "platform/linux/input/X11Injection.h"

#include <algorithm>
#include <limits>
#include <xcb/xtest.h>

namespace brindlex {
namespace {

std::int16_t coordinate(int value)
{
    return static_cast<std::int16_t>(std::clamp<int>(
        value, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

} // namespace

X11Injection::X11Injection(X11Connection& connection)
    : connection_(connection), lentButtons_(connection)
{
    // What is played goes on while another program has the server for itself.
    xcb_test_grab_control(connection_.get(), true);
}

void X11Injection::press(Kind kind, std::uint8_t code)
{
    if (++held_[{kind, code}] == 1)
        play(kind, code, true);
}

void X11Injection::release(Kind kind, std::uint8_t code)
{
    const auto held = held_.find({kind, code});
    if (held != held_.end() && --held->second > 0)
        return;
    if (held != held_.end())
        held_.erase(held);
    play(kind, code, false);
}

void X11Injection::releaseAll()
{
    for (const auto& [press, count] : held_)
        play(press.first, press.second, false);
    held_.clear();
    xcb_flush(connection_.get());
}

void X11Injection::turnWheel(std::uint8_t button)
{
    play(Kind::button, button, true);
    play(Kind::button, button, false);
}

void X11Injection::moveBy(int x, int y) { playMotion(true, x, y); }

void X11Injection::moveTo(int x, int y) { playMotion(false, x, y); }

void X11Injection::play(Kind kind, std::uint8_t code, bool isPress)
{
    const int press = kind == Kind::key ? XCB_KEY_PRESS : XCB_BUTTON_PRESS;
    const int release = kind == Kind::key ? XCB_KEY_RELEASE : XCB_BUTTON_RELEASE;
    const int type = isPress ? press : release;
    const auto isDown = [this](std::uint8_t button) { return holds(Kind::button, button); };
    const auto played
        = kind == Kind::button ? lentButtons_.standIn(code, isDown) : std::optional(code);
    if (!played)
        return;
    xcb_test_fake_input(connection_.get(), static_cast<std::uint8_t>(type), *played,
        XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    if (kind == Kind::button && !isPress)
        lentButtons_.giveBack(code);
}

void X11Injection::playMotion(bool isRelative, int x, int y)
{
    xcb_test_fake_input(connection_.get(), XCB_MOTION_NOTIFY, isRelative ? 1 : 0, XCB_CURRENT_TIME,
        isRelative ? xcb_window_t{XCB_WINDOW_NONE} : connection_.root(), coordinate(x),
        coordinate(y), 0);
}

} // namespace brindlex
