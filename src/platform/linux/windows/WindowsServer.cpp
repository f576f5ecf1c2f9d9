#include "platform/linux/windows/WindowsServer.h"

#include "platform/linux/x11/X11Connection.h"

#include <QGuiApplication>

namespace brindlex {

xcb_connection_t* windowsServer()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

void waitForWindowsServer()
{
    auto* const server = windowsServer();
    const X11Message<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
}

} // namespace brindlex
