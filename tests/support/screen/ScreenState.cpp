#include "support/screen/ScreenState.h"

#include "support/screen/DesktopWindows.h"
#include "support/screen/XConnection.h"

#include <sstream>

namespace brindlex {
namespace {

std::string named(const DesktopWindows& windows, xcb_window_t window)
{
    std::ostringstream text;
    text << "0x" << std::hex << window;
    if (window > XCB_INPUT_FOCUS_POINTER_ROOT)
        text << " " << windows.classOf(window) << " \"" << windows.titleOf(window) << "\"";
    return text.str();
}

std::string pointer(const XConnection& server, const DesktopWindows& windows)
{
    const XReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        server.get(), xcb_query_pointer(server.get(), server.root()), nullptr));
    if (!reply)
        return "unknown";
    std::ostringstream text;
    text << reply->root_x << "," << reply->root_y << " in " << named(windows, reply->child)
         << ", buttons and modifiers 0x" << std::hex << reply->mask;
    return text.str();
}

} // namespace

std::string screenState()
{
    const XConnection server;
    if (!server.isOpen())
        return "--- no screen\n";
    const DesktopWindows windows(server);
    std::string text = "--- screen\nin front: " + named(windows, windows.active())
        + "\nkeys go to: " + named(windows, windows.focused())
        + "\npointer: " + pointer(server, windows) + "\n";
    for (const auto window : windows.managed()) {
        const auto area = windows.areaOf(window);
        text += "window: " + named(windows, window) + " at " + std::to_string(area.x) + ","
            + std::to_string(area.y) + " " + std::to_string(area.width) + "x"
            + std::to_string(area.height) + "\n";
    }
    return text;
}

} // namespace brindlex
