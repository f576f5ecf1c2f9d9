#include "platform/linux/input/X11CursorState.h"

#include "platform/linux/input/X11Modifiers.h"

namespace brindlex {

X11CursorState cursorState(X11Connection& connection)
{
    // Not by the input extension: its reply has the modifiers of before the last key.
    auto* const server = connection.get();
    const auto request = xcb_query_pointer(server, connection.root());
    const X11Message<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(server, request, nullptr));
    if (!reply)
        return {};
    return {{static_cast<double>(reply->root_x), static_cast<double>(reply->root_y)},
        flagsOfModifiers(reply->mask)};
}

} // namespace brindlex
