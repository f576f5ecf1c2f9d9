#include "platform/linux/x11/XkbProtocol.h"

#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

std::optional<std::uint8_t> useXkb(xcb_connection_t* server)
{
    const auto* extension = xcb_get_extension_data(server, &xcb_xkb_id);
    if (!extension || !extension->present)
        return {};
    const X11Message<xcb_xkb_use_extension_reply_t> reply(xcb_xkb_use_extension_reply(server,
        xcb_xkb_use_extension(server, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION), nullptr));
    if (!reply || !reply->supported)
        return {};
    return extension->first_event;
}

} // namespace brindlex
