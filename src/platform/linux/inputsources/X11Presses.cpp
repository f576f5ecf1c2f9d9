#include "platform/linux/inputsources/X11Presses.h"

#include <utility>
#include <xcb/xinput.h>

namespace brindlex {
namespace {

constexpr std::uint32_t presses = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS
    | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_TOUCH_BEGIN;

bool isWheel(std::uint32_t button) { return button >= 4 && button <= 7; }

bool isPress(const xcb_ge_generic_event_t& event)
{
    switch (event.event_type) {
    case XCB_INPUT_RAW_KEY_PRESS:
    case XCB_INPUT_RAW_TOUCH_BEGIN:
        return true;
    case XCB_INPUT_RAW_BUTTON_PRESS:
        return !isWheel(reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event).detail);
    default:
        return false;
    }
}

} // namespace

X11Presses::X11Presses(X11Connection& connection, std::function<void()> pressed)
    : connection_(connection), pressed_(std::move(pressed))
{
    if (!connection_.isAlive())
        return;
    const auto* extension = xcb_get_extension_data(connection_.get(), &xcb_input_id);
    if (!extension || !extension->present)
        return;
    extension_ = extension->major_opcode;
    xcb_discard_reply(
        connection_.get(), xcb_input_xi_query_version(connection_.get(), 2, 2).sequence);
    events_
        = connection_.observeEvents([this](const xcb_generic_event_t& event) { handle(event); });
}

X11Presses::~X11Presses() { stop(); }

void X11Presses::await()
{
    if (extension_ != 0 && !std::exchange(isAwaiting_, true))
        select(presses);
}

void X11Presses::catchUp()
{
    if (!isAwaiting_)
        return;
    const X11Message<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(
        connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

void X11Presses::select(std::uint32_t kinds)
{
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t kinds;
    } mask{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, kinds};
    xcb_input_xi_select_events(connection_.get(), connection_.root(), 1, &mask.head);
    xcb_flush(connection_.get());
}

void X11Presses::handle(const xcb_generic_event_t& event)
{
    if ((event.response_type & 0x7f) != XCB_GE_GENERIC)
        return;
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    if (generic.extension != extension_ || !isAwaiting_ || !isPress(generic))
        return;
    stop();
    pressed_();
}

void X11Presses::stop()
{
    if (std::exchange(isAwaiting_, false))
        select(0);
}

} // namespace brindlex
