#include "support/screen/DesktopWindows.h"

#include "support/basics/Eventually.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr std::uint32_t sourceIsPager = 2;

} // namespace

std::vector<xcb_window_t> DesktopWindows::managed() const
{
    return server_.values(server_.root(), "_NET_CLIENT_LIST");
}

std::optional<xcb_window_t> DesktopWindows::withClass(const std::string& className) const
{
    const auto windows = managed();
    const auto found = std::find_if(
        windows.begin(), windows.end(), [&](auto window) { return classOf(window) == className; });
    return found == windows.end() ? std::nullopt : std::optional(*found);
}

std::vector<xcb_window_t> DesktopWindows::unmanagedOf(int process) const
{
    const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
        server_.get(), xcb_query_tree(server_.get(), server_.root()), nullptr));
    std::vector<xcb_window_t> windows;
    if (!tree)
        return windows;
    const auto children = xcb_query_tree_children(tree.get());
    for (const auto window :
        std::vector(children, children + xcb_query_tree_children_length(tree.get()))) {
        const XReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
            server_.get(), xcb_get_window_attributes(server_.get(), window), nullptr));
        const auto isOfProcess = server_.values(window, "_NET_WM_PID")
            == std::vector{static_cast<std::uint32_t>(process)};
        if (attributes && attributes->override_redirect
            && attributes->map_state == XCB_MAP_STATE_VIEWABLE && isOfProcess)
            windows.push_back(window);
    }
    return windows;
}

xcb_window_t DesktopWindows::active() const
{
    const auto windows = server_.values(server_.root(), "_NET_ACTIVE_WINDOW");
    return windows.empty() ? xcb_window_t{XCB_WINDOW_NONE} : windows.front();
}

xcb_window_t DesktopWindows::focused() const
{
    const XReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(server_.get(), xcb_get_input_focus(server_.get()), nullptr));
    return focus ? focus->focus : xcb_window_t{XCB_WINDOW_NONE};
}

bool DesktopWindows::hasFocus(xcb_window_t window) const
{
    auto holder = focused();
    while (holder != window && holder > XCB_INPUT_FOCUS_POINTER_ROOT) {
        const XReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(server_.get(), xcb_query_tree(server_.get(), holder), nullptr));
        holder = tree ? tree->parent : xcb_window_t{XCB_WINDOW_NONE};
    }
    return holder == window;
}

std::string DesktopWindows::classOf(xcb_window_t window) const
{
    // Two texts, each with its end: the name of the window's kind and that of its program.
    const auto both = server_.text(window, "WM_CLASS");
    const auto start = both.find('\0');
    return start == std::string::npos ? "" : both.c_str() + start + 1;
}

std::string DesktopWindows::titleOf(xcb_window_t window) const
{
    const auto title = server_.text(window, "_NET_WM_NAME");
    return title.empty() ? server_.text(window, "WM_NAME") : title;
}

ScreenArea DesktopWindows::areaOf(xcb_window_t window) const
{
    const XReply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(server_.get(), xcb_get_geometry(server_.get(), window), nullptr));
    const XReply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(server_.get(),
            xcb_translate_coordinates(server_.get(), window, server_.root(), 0, 0), nullptr));
    if (!size || !place)
        return {};
    return {place->dst_x, place->dst_y, size->width, size->height};
}

bool DesktopWindows::isOnScreen(xcb_window_t window) const
{
    const XReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        server_.get(), xcb_get_window_attributes(server_.get(), window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool DesktopWindows::activate(xcb_window_t window) const
{
    requestActivation(window);
    return eventually([&] { return active() == window && hasFocus(window); });
}

void DesktopWindows::requestActivation(xcb_window_t window) const
{
    server_.ask(window, "_NET_ACTIVE_WINDOW", {sourceIsPager, XCB_CURRENT_TIME, active()});
}

void DesktopWindows::place(xcb_window_t window, const ScreenArea& area) const
{
    const std::uint32_t values[]
        = {static_cast<std::uint32_t>(area.x), static_cast<std::uint32_t>(area.y),
            static_cast<std::uint32_t>(area.width), static_cast<std::uint32_t>(area.height)};
    xcb_configure_window(server_.get(), window,
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH
            | XCB_CONFIG_WINDOW_HEIGHT,
        values);
    server_.sync();
}

} // namespace brindlex
