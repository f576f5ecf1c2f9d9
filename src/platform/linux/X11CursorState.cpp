#include "platform/linux/X11CursorState.h"

#include "platform/linux/X11FixedPoint.h"
#include "platform/linux/X11Modifiers.h"

namespace brindlex {

X11CursorState cursorState(X11Connection& connection, std::uint16_t pointer)
{
    auto* const server = connection.get();
    const auto request = xcb_input_xi_query_pointer(server, connection.root(), pointer);
    const X11Message<xcb_input_xi_query_pointer_reply_t> reply(
        xcb_input_xi_query_pointer_reply(server, request, nullptr));
    if (!reply)
        return {};
    // The server leaves the effective modifiers of this reply empty.
    const auto& mods = reply->mods;
    return {{number(reply->root_x), number(reply->root_y)},
        flagsOfModifiers(mods.base | mods.latched | mods.locked)};
}

} // namespace brindlex
