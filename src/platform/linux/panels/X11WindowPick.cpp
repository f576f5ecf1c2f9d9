#include "platform/linux/panels/X11WindowPick.h"

#include "log/Log.h"
#include "platform/linux/windows/X11WindowAtPoint.h"

#include <chrono>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto betweenAttempts = 20ms;
constexpr int mostAttempts = 50;
/// How far an arrow moves the crosshair, in pixels.
constexpr int arrowStep = 16;
constexpr xcb_button_t primaryButton = 1;
/// From here on they are the notches of wheels.
constexpr xcb_button_t firstWheelButton = 4;
constexpr xcb_button_t lastWheelButton = 7;

// Numbers of the keys' symbols (X11/keysymdef.h) and of the crosshair in the font of cursors.
constexpr std::uint32_t space = 0x20;
constexpr std::uint32_t returnKey = 0xff0d;
constexpr std::uint32_t keypadEnter = 0xff8d;
constexpr std::uint32_t escape = 0xff1b;
constexpr std::uint32_t left = 0xff51;
constexpr std::uint32_t up = 0xff52;
constexpr std::uint32_t right = 0xff53;
constexpr std::uint32_t down = 0xff54;
constexpr std::uint16_t crosshair = 34;

bool isOfWheel(xcb_button_t button)
{
    return button >= firstWheelButton && button <= lastWheelButton;
}

} // namespace

X11WindowPick::X11WindowPick(TapWatchdog& watchdog, std::function<void(const Found&)> found)
    : watchdog_(watchdog), found_(std::move(found)),
      events_(
          connection_.observeEvents([this](const xcb_generic_event_t& event) { receive(event); }))
{
    attempts_.setInterval(betweenAttempts);
    QObject::connect(&attempts_, &QTimer::timeout, &attempts_, [this] { attempt(); });
}

X11WindowPick::~X11WindowPick() { giveBack(); }

void X11WindowPick::start()
{
    if (!connection_.isAlive())
        return finish({});
    hold_.emplace(connection_.get());
    connection_.listenTo(hold_->window(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    // Before anything is taken: the program may hang at any moment.
    watchdog_.watchOpen(hold_->window());
    attempts_.start();
    attempt();
}

/// Other programs may have the pointer or the keys for a moment, as while a button is held.
void X11WindowPick::attempt()
{
    if (hold_->take()) {
        attempts_.stop();
        showCrosshair();
    } else if (++made_ == mostAttempts) {
        Log::warn("No window can be picked: another program keeps the pointer or the keyboard",
            logCategory::ui);
        finish({});
    }
}

void X11WindowPick::showCrosshair()
{
    auto* const server = connection_.get();
    const auto font = xcb_generate_id(server);
    const std::string_view name = "cursor";
    xcb_open_font(server, font, static_cast<std::uint16_t>(name.size()), name.data());
    const auto cursor = xcb_generate_id(server);
    xcb_create_glyph_cursor(
        server, cursor, font, font, crosshair, crosshair + 1, 0, 0, 0, 0xffff, 0xffff, 0xffff);
    xcb_change_active_pointer_grab(server, cursor, XCB_CURRENT_TIME,
        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE);
    xcb_free_cursor(server, cursor);
    xcb_close_font(server, font);
    xcb_flush(server);
}

void X11WindowPick::receive(const xcb_generic_event_t& event)
{
    switch (event.response_type & 0x7f) {
    case XCB_BUTTON_PRESS:
        pressedButton_ = reinterpret_cast<const xcb_button_press_event_t&>(event).detail;
        break;
    case XCB_BUTTON_RELEASE:
        releaseButton(reinterpret_cast<const xcb_button_release_event_t&>(event));
        break;
    case XCB_KEY_PRESS:
        pressKey(reinterpret_cast<const xcb_key_press_event_t&>(event));
        break;
    case XCB_KEY_RELEASE:
        releaseKey(reinterpret_cast<const xcb_key_release_event_t&>(event));
        break;
    case XCB_UNMAP_NOTIFY:
        finish({});
        break;
    default:
        break;
    }
}

// What ends the pick does so when it is let go, as the release would reach a program that got no
// press.
void X11WindowPick::releaseButton(const xcb_button_release_event_t& event)
{
    if (event.detail != std::exchange(pressedButton_, 0) || isOfWheel(event.detail))
        return;
    if (event.detail == primaryButton)
        finishAt(event.root_x, event.root_y);
    else
        finish({});
}

void X11WindowPick::pressKey(const xcb_key_press_event_t& event)
{
    pressedKey_ = event.detail;
    switch (symbolOf(event.detail)) {
    case left:
        return moveBy(-arrowStep, 0);
    case right:
        return moveBy(arrowStep, 0);
    case up:
        return moveBy(0, -arrowStep);
    case down:
        return moveBy(0, arrowStep);
    default:
        break;
    }
}

void X11WindowPick::releaseKey(const xcb_key_release_event_t& event)
{
    if (event.detail != std::exchange(pressedKey_, 0))
        return;
    const auto symbol = symbolOf(event.detail);
    if (symbol == escape)
        finish({});
    else if (symbol == returnKey || symbol == keypadEnter || symbol == space)
        finishAtPointer();
}

std::uint32_t X11WindowPick::symbolOf(xcb_keycode_t key)
{
    const X11Message<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
        connection_.get(), xcb_get_keyboard_mapping(connection_.get(), key, 1), nullptr));
    if (!reply || xcb_get_keyboard_mapping_keysyms_length(reply.get()) == 0)
        return 0;
    return *xcb_get_keyboard_mapping_keysyms(reply.get());
}

void X11WindowPick::moveBy(int x, int y)
{
    xcb_warp_pointer(connection_.get(), XCB_NONE, XCB_NONE, 0, 0, 0, 0,
        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
    xcb_flush(connection_.get());
}

void X11WindowPick::finishAt(int x, int y)
{
    finish(workWindowAt(connection_, {static_cast<double>(x), static_cast<double>(y)}));
}

/// Where the arrows have brought it, which the key may not know yet.
void X11WindowPick::finishAtPointer()
{
    const X11Message<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        connection_.get(), xcb_query_pointer(connection_.get(), connection_.root()), nullptr));
    if (pointer)
        finishAt(pointer->root_x, pointer->root_y);
    else
        finish({});
}

/// From the loop, as what is called may end this object while its connection hands out events.
void X11WindowPick::finish(const Found& found)
{
    giveBack();
    auto called = std::exchange(found_, nullptr);
    if (!called)
        return;
    QTimer::singleShot(0, &attempts_, [weak = weak_from_this(), called = std::move(called), found] {
        if (const auto kept = weak.lock())
            called(found);
    });
}

void X11WindowPick::giveBack()
{
    attempts_.stop();
    if (!hold_)
        return;
    watchdog_.rest();
    hold_.reset();
    // Returns when the server has done it.
    const X11Message<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(
        connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

} // namespace brindlex
