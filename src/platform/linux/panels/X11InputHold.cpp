#include "platform/linux/panels/X11InputHold.h"

#include "platform/linux/x11/X11Connection.h"

namespace brindlex {
namespace {

xcb_window_t rootOf(xcb_connection_t* server)
{
    return xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
}

} // namespace

X11InputHold::X11InputHold(xcb_connection_t* server)
    : server_(server), window_(xcb_generate_id(server))
{
    const std::uint32_t unmanaged = 1;
    xcb_create_window(server_, XCB_COPY_FROM_PARENT, window_, rootOf(server_), -1, -1, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
    xcb_map_window(server_, window_);
}

X11InputHold::~X11InputHold()
{
    xcb_destroy_window(server_, window_);
    xcb_flush(server_);
}

bool X11InputHold::take()
{
    constexpr auto async = XCB_GRAB_MODE_ASYNC;
    const auto keysRequest
        = xcb_grab_keyboard(server_, false, window_, XCB_CURRENT_TIME, async, async);
    // From the first moment: a click that comes at once is not lost.
    constexpr std::uint16_t clicks = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
    const auto pointerRequest = xcb_grab_pointer(
        server_, false, window_, clicks, async, async, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    const X11Message<xcb_grab_keyboard_reply_t> keys(
        xcb_grab_keyboard_reply(server_, keysRequest, nullptr));
    const X11Message<xcb_grab_pointer_reply_t> pointer(
        xcb_grab_pointer_reply(server_, pointerRequest, nullptr));
    const bool hasKeys = keys && keys->status == XCB_GRAB_STATUS_SUCCESS;
    const bool hasPointer = pointer && pointer->status == XCB_GRAB_STATUS_SUCCESS;
    if (hasKeys && !hasPointer)
        xcb_ungrab_keyboard(server_, XCB_CURRENT_TIME);
    if (hasPointer && !hasKeys)
        xcb_ungrab_pointer(server_, XCB_CURRENT_TIME);
    xcb_flush(server_);
    return hasKeys && hasPointer;
}

} // namespace brindlex
