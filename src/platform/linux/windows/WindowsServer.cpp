#include "platform/linux/windows/WindowsServer.h"

#include <QGuiApplication>

namespace brindlex {

xcb_connection_t* windowsServer()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

} // namespace brindlex
