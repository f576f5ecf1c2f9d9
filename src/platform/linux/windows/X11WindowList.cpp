#include "platform/linux/windows/X11WindowList.h"

#include "platform/linux/windows/X11WindowKind.h"
#include "platform/linux/windows/X11WindowStack.h"

namespace brindlex {
namespace {

constexpr std::uint32_t allDesktops = 0xFFFFFFFF;

/// The requests about one window, sent all at once.
struct WindowRequests {
    WindowRequests(X11Connection& connection, xcb_window_t window)
        : frame(connection, window, "_NET_FRAME_EXTENTS", 4 * sizeof(std::uint32_t)),
          shadow(connection, window, "_GTK_FRAME_EXTENTS", 4 * sizeof(std::uint32_t)),
          opacity(connection, window, "_NET_WM_WINDOW_OPACITY", sizeof(std::uint32_t)),
          desktop(connection, window, "_NET_WM_DESKTOP", sizeof(std::uint32_t)),
          kind(connection, window), attributes(xcb_get_window_attributes(connection.get(), window)),
          geometry(xcb_get_geometry(connection.get(), window)),
          origin(xcb_translate_coordinates(connection.get(), window, connection.root(), 0, 0))
    {
    }

    X11PropertyRequest frame;
    X11PropertyRequest shadow;
    X11PropertyRequest opacity;
    X11PropertyRequest desktop;
    X11WindowKindRequest kind;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t origin;
};

std::optional<std::uint32_t> first(std::optional<std::vector<std::uint32_t>> values)
{
    return values && !values->empty() ? std::optional(values->front()) : std::nullopt;
}

/// The window without its invisible shadow and with the frame that the window manager drew.
std::optional<Rect> boundsOf(X11Connection& connection, WindowRequests& requests)
{
    const X11Message<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection.get(), requests.geometry, nullptr));
    const X11Message<xcb_translate_coordinates_reply_t> origin(
        xcb_translate_coordinates_reply(connection.get(), requests.origin, nullptr));
    const auto frame = requests.frame.values();
    const auto shadow = requests.shadow.values();
    if (!geometry || !origin)
        return {};
    Rect bounds{{static_cast<double>(origin->dst_x), static_cast<double>(origin->dst_y)},
        {static_cast<double>(geometry->width), static_cast<double>(geometry->height)}};
    const auto grow = [&](const std::vector<std::uint32_t>& sides, double sign) {
        bounds.origin.x -= sign * sides[0];
        bounds.origin.y -= sign * sides[2];
        bounds.size.width += sign * (double(sides[0]) + sides[1]);
        bounds.size.height += sign * (double(sides[2]) + sides[3]);
    };
    if (shadow && shadow->size() == 4)
        grow(*shadow, -1);
    else if (frame && frame->size() == 4)
        grow(*frame, 1);
    return bounds;
}

/// Nothing for a window that is not to be seen now, and for the desktop.
std::optional<WindowInfo> infoOf(X11Connection& connection, WindowRequests& requests,
    const X11WindowKinds& kinds, std::optional<std::uint32_t> currentDesktop)
{
    const X11Message<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(connection.get(), requests.attributes, nullptr));
    const auto kind = requests.kind.kind(kinds);
    const auto desktop = first(requests.desktop.values());
    const auto opacity = first(requests.opacity.values());
    const auto bounds = boundsOf(connection, requests);
    const bool isElsewhere
        = desktop && currentDesktop && *desktop != allDesktops && *desktop != *currentDesktop;
    const bool isViewable = attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    if (!isViewable || isElsewhere || kind.isHidden || kind.isDesktop)
        return {};
    const bool isRaised = kind.isAbove || kind.isFurniture;
    return WindowInfo{isRaised ? 1 : 0, opacity ? *opacity / double(0xFFFFFFFF) : 1.0, bounds};
}

} // namespace

std::vector<WindowInfo> X11WindowList::onScreen()
{
    auto& connection = connection_;
    X11WindowStackRequest stackRequest(connection);
    X11PropertyRequest desktopRequest(
        connection, connection.root(), "_NET_CURRENT_DESKTOP", sizeof(std::uint32_t));
    const auto frontToBack = stackRequest.fromTheTop().value_or(std::vector<xcb_window_t>{});
    const auto current = first(desktopRequest.values());
    const X11WindowKinds kinds([&](std::string_view name) { return connection.atom(name); });

    std::vector<WindowRequests> requests;
    requests.reserve(frontToBack.size());
    for (const auto window : frontToBack)
        requests.emplace_back(connection, window);

    std::vector<WindowInfo> windows;
    for (auto& request : requests)
        if (const auto info = infoOf(connection, request, kinds, current))
            windows.push_back(*info);
    return windows;
}

} // namespace brindlex
