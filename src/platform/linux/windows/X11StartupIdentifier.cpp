#include "platform/linux/windows/X11StartupIdentifier.h"

#include "platform/linux/x11/X11Connection.h"

#include <optional>
#include <unistd.h>
#include <xcb/xcb.h>

namespace brindlex {
namespace {

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

/// A window that nobody sees, whose properties are watched.
xcb_window_t makeWatchedWindow(xcb_connection_t* connection)
{
    const auto window = xcb_generate_id(connection);
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection, 0, window, root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
        XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    return window;
}

/// The server says its time with the event of a change, also of one that adds nothing.
std::optional<xcb_timestamp_t> serverTime()
{
    const Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        return {};
    const auto window = makeWatchedWindow(connection.get());
    xcb_change_property(connection.get(), XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME,
        XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_flush(connection.get());
    while (const X11Message<xcb_generic_event_t> event{xcb_wait_for_event(connection.get())})
        if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY)
            return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
    return {};
}

} // namespace

std::string startupIdentifierForNow()
{
    const auto time = serverTime();
    if (!time)
        return {};
    return "brindlex-" + std::to_string(::getpid()) + "_TIME" + std::to_string(*time);
}

} // namespace brindlex
