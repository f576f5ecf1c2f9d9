#include "support/windows/PlainWindow.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"
#include "support/screen/DesktopWindows.h"

#include <algorithm>

namespace brindlex {

PlainWindow::PlainWindow(const XConnection& server, const Claims& claims)
    : server_(server), window_(xcb_generate_id(server.get()))
{
    const auto connection = server.get();
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_, server.root(), 0, 0, 200, 120, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, server.screen().root_visual, XCB_CW_BACK_PIXEL,
        &server.screen().white_pixel);
    const auto claim = [&](const std::string& name, const std::string& type, std::uint8_t format,
                           std::size_t count, const void* value) {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, server.atom(name),
            server.atom(type), format, static_cast<std::uint32_t>(count), value);
    };
    if (claims.wmClass)
        claim("WM_CLASS", "STRING", 8, claims.wmClass->size(), claims.wmClass->data());
    if (claims.process)
        claim("_NET_WM_PID", "CARDINAL", 32, 1, &*claims.process);
    claim("_NET_WM_NAME", "UTF8_STRING", 8, claims.title.size(), claims.title.data());
    xcb_map_window(connection, window_);
    server.sync();
    const DesktopWindows windows(server);
    const auto isManaged = [&] {
        const auto all = windows.managed();
        return std::find(all.begin(), all.end(), window_) != all.end();
    };
    if (!eventually(isManaged))
        fatalError("The window manager does not see the window.");
}

PlainWindow::~PlainWindow()
{
    xcb_destroy_window(server_.get(), window_);
    server_.sync();
}

std::string wmClass(const std::string& className)
{
    return "window" + std::string(1, '\0') + className + std::string(1, '\0');
}

} // namespace brindlex
