#include "platform/linux/x11/X11Compositor.h"

namespace brindlex {

bool hasCompositor(X11Connection& connection)
{
    const auto selection = connection.atom("_NET_WM_CM_S0");
    const X11Message<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection.get(), xcb_get_selection_owner(connection.get(), selection), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace brindlex
