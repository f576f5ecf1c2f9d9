#include "platform/linux/x11/X11RawPresses.h"

#include <xcb/xinput.h>

#include <utility>

namespace brindlex {
namespace {

constexpr std::uint32_t buttons
    = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_TOUCH_BEGIN;

std::uint32_t eventsOf(X11RawPresses::Kind kind)
{
    return kind == X11RawPresses::Kind::keysToo ? buttons | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS
                                                : buttons;
}

/// The server keeps what a connection listens to by device: each kind has one of its own, so that
/// none replaces the other.
std::uint16_t deviceOf(X11RawPresses::Kind kind, xcb_connection_t* server)
{
    if (kind == X11RawPresses::Kind::keysToo)
        return XCB_INPUT_DEVICE_ALL_MASTER;
    const X11Message<xcb_input_xi_query_device_reply_t> masters(xcb_input_xi_query_device_reply(
        server, xcb_input_xi_query_device(server, XCB_INPUT_DEVICE_ALL_MASTER), nullptr));
    if (!masters)
        return XCB_INPUT_DEVICE_ALL_MASTER;
    auto device = xcb_input_xi_query_device_infos_iterator(masters.get());
    while (device.rem > 1 && device.data->type != XCB_INPUT_DEVICE_TYPE_MASTER_POINTER)
        xcb_input_xi_device_info_next(&device);
    return device.data->deviceid;
}

bool isWheel(std::uint32_t button) { return button >= 4 && button <= 7; }

} // namespace

X11RawPresses::X11RawPresses(X11Connection& connection, Kind kind, std::function<void()> pressed)
    : connection_(connection), kind_(kind), pressed_(std::move(pressed))
{
    if (!connection_.isAlive())
        return;
    const auto* extension = xcb_get_extension_data(connection_.get(), &xcb_input_id);
    if (!extension || !extension->present)
        return;
    extension_ = extension->major_opcode;
    xcb_discard_reply(
        connection_.get(), xcb_input_xi_query_version(connection_.get(), 2, 2).sequence);
    device_ = deviceOf(kind_, connection_.get());
    events_
        = connection_.observeEvents([this](const xcb_generic_event_t& event) { receive(event); });
}

void X11RawPresses::listen()
{
    if (extension_ != 0 && !std::exchange(isListening_, true))
        select(eventsOf(kind_));
}

void X11RawPresses::stop()
{
    if (std::exchange(isListening_, false))
        select(0);
}

void X11RawPresses::select(std::uint32_t kinds)
{
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t kinds;
    } mask{{device_, 1}, kinds};
    xcb_input_xi_select_events(connection_.get(), connection_.root(), 1, &mask.head);
    xcb_flush(connection_.get());
}

bool X11RawPresses::isPress(const xcb_ge_generic_event_t& event) const
{
    switch (event.event_type) {
    case XCB_INPUT_RAW_KEY_PRESS:
        return kind_ == Kind::keysToo;
    case XCB_INPUT_RAW_TOUCH_BEGIN:
        return true;
    case XCB_INPUT_RAW_BUTTON_PRESS:
        return !isWheel(reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event).detail);
    default:
        return false;
    }
}

void X11RawPresses::receive(const xcb_generic_event_t& event)
{
    if (!isListening_ || (event.response_type & 0x7f) != XCB_GE_GENERIC)
        return;
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    if (generic.extension == extension_ && isPress(generic))
        pressed_();
}

} // namespace brindlex
