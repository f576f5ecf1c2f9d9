#include "platform/linux/windows/VirtualDesktops.h"

#include "platform/linux/x11/X11Properties.h"

namespace brindlex {
namespace {

std::uint32_t valueOf(X11Connection& connection, std::string_view name)
{
    const auto values
        = X11PropertyRequest(connection, connection.root(), name, sizeof(std::uint32_t)).values();
    return values && !values->empty() ? values->front() : 0;
}

void ask(X11Connection& connection, std::string_view message, std::uint32_t value)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = connection.root();
    event.type = connection.atom(message);
    event.data.data32[0] = value;
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(connection.get(), false, connection.root(),
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char*>(&event));
    xcb_flush(connection.get());
}

} // namespace

void switchDesktop(X11Connection& connection, int distance)
{
    const auto count = std::int64_t{valueOf(connection, "_NET_NUMBER_OF_DESKTOPS")};
    const auto target = std::int64_t{valueOf(connection, "_NET_CURRENT_DESKTOP")} + distance;
    if (target >= 0 && target < count)
        ask(connection, "_NET_CURRENT_DESKTOP", static_cast<std::uint32_t>(target));
}

void toggleShowingDesktop(X11Connection& connection)
{
    const bool isShowing = valueOf(connection, "_NET_SHOWING_DESKTOP") != 0;
    ask(connection, "_NET_SHOWING_DESKTOP", isShowing ? 0 : 1);
}

} // namespace brindlex
