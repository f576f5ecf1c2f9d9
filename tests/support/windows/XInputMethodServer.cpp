#include "support/windows/XInputMethodServer.h"

#include "support/screen/XConnection.h"

#include <algorithm>

namespace brindlex {

bool hasXInputMethodServer(const std::string& name)
{
    const XConnection server;
    const auto atom = server.atom("@server=" + name);
    const auto servers = server.values(server.root(), "XIM_SERVERS");
    if (std::find(servers.begin(), servers.end(), atom) == servers.end())
        return false;
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        server.get(), xcb_get_selection_owner(server.get(), atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace brindlex
