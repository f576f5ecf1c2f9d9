#include "platform/linux/windows/X11WindowActivation.h"

#include "platform/linux/windows/X11WindowReading.h"
#include "platform/linux/x11/X11Properties.h"

namespace brindlex {
namespace {

/// `_NET_ACTIVE_WINDOW` and `_NET_CURRENT_DESKTOP` from a program that acts for the user.
constexpr std::uint32_t sourceIsPager = 2;
constexpr std::uint32_t onAllDesktops = 0xFFFFFFFF;

void askWindowManager(
    X11Connection& connection, xcb_window_t window, std::string_view message, std::uint32_t first)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = connection.atom(message);
    event.data.data32[0] = first;
    event.data.data32[1] = XCB_CURRENT_TIME;
    constexpr auto mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
    xcb_send_event(
        connection.get(), false, connection.root(), mask, reinterpret_cast<const char*>(&event));
}

void bringToFront(X11Connection& connection, xcb_window_t window)
{
    const auto desktop = X11PropertyRequest(connection, window, "_NET_WM_DESKTOP", 4).values();
    if (desktop && !desktop->empty() && desktop->front() != onAllDesktops)
        askWindowManager(connection, connection.root(), "_NET_CURRENT_DESKTOP", desktop->front());
    askWindowManager(connection, window, "_NET_ACTIVE_WINDOW", sourceIsPager);
}

/// A round trip, so that the process may end at once.
void waitForServer(X11Connection& connection) { activeWindow(connection); }

} // namespace

void activateWindow(X11Connection& connection, xcb_window_t window)
{
    bringToFront(connection, window);
    waitForServer(connection);
}

void activateWindowsOf(X11Connection& connection, ProcessIdentity process)
{
    const auto windows = managedWindows(connection);
    const auto descriptions = describe(connection, windows);
    for (std::size_t index = 0; index < windows.size(); ++index)
        if (descriptions[index]
            && ProcessIdentity{descriptions[index]->processIdentifier} == process)
            bringToFront(connection, windows[index]);
    waitForServer(connection);
}

} // namespace brindlex
