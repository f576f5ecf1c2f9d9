#include "platform/linux/windows/VirtualDesktops.h"

#include "platform/linux/windows/DesktopGrid.h"
#include "platform/linux/x11/X11Properties.h"

namespace brindlex {
namespace {

/// The first values of a property of the root window.
std::vector<std::uint32_t> valuesOf(X11Connection& connection, std::string_view name)
{
    constexpr std::uint32_t most = 4 * sizeof(std::uint32_t);
    return X11PropertyRequest(connection, connection.root(), name, most)
        .values()
        .value_or(std::vector<std::uint32_t>{});
}

std::uint32_t valueOf(X11Connection& connection, std::string_view name)
{
    const auto values = valuesOf(connection, name);
    return values.empty() ? 0 : values.front();
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
    const DesktopGrid grid(valueOf(connection, "_NET_NUMBER_OF_DESKTOPS"),
        valuesOf(connection, "_NET_DESKTOP_LAYOUT"));
    if (const auto target = grid.beside(valueOf(connection, "_NET_CURRENT_DESKTOP"), distance))
        ask(connection, "_NET_CURRENT_DESKTOP", *target);
}

void toggleShowingDesktop(X11Connection& connection)
{
    const bool isShowing = valueOf(connection, "_NET_SHOWING_DESKTOP") != 0;
    ask(connection, "_NET_SHOWING_DESKTOP", isShowing ? 0 : 1);
}

} // namespace brindlex
