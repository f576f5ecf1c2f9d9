#include "platform/linux/windows/X11WindowAtPoint.h"

#include "platform/linux/windows/X11WindowKind.h"

#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

/// Windows lie in each other no deeper than this before the one of an application comes.
constexpr std::size_t deepest = 16;

std::int16_t pixel(double coordinate)
{
    return static_cast<std::int16_t>(std::clamp(std::floor(coordinate), -32768.0, 32767.0));
}

/// The windows at the point, each in the one before, from the root down.
std::vector<xcb_window_t> windowsAt(X11Connection& connection, Point point)
{
    std::vector<xcb_window_t> windows;
    auto window = connection.root();
    while (windows.size() < deepest) {
        const X11Message<xcb_translate_coordinates_reply_t> reply(
            xcb_translate_coordinates_reply(connection.get(),
                xcb_translate_coordinates(
                    connection.get(), connection.root(), window, pixel(point.x), pixel(point.y)),
                nullptr));
        if (!reply || reply->child == XCB_WINDOW_NONE)
            break;
        window = reply->child;
        windows.push_back(window);
    }
    return windows;
}

std::optional<Rect> contentsOf(X11Connection& connection, xcb_window_t window)
{
    const auto geometryCookie = xcb_get_geometry(connection.get(), window);
    const auto originCookie
        = xcb_translate_coordinates(connection.get(), window, connection.root(), 0, 0);
    const X11Message<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection.get(), geometryCookie, nullptr));
    const X11Message<xcb_translate_coordinates_reply_t> origin(
        xcb_translate_coordinates_reply(connection.get(), originCookie, nullptr));
    if (!geometry || !origin)
        return {};
    return Rect{{static_cast<double>(origin->dst_x), static_cast<double>(origin->dst_y)},
        {static_cast<double>(geometry->width), static_cast<double>(geometry->height)}};
}

} // namespace

std::optional<X11WindowAtPoint> windowAt(X11Connection& connection, Point point)
{
    if (!connection.isAlive())
        return {};
    const auto windows = windowsAt(connection, point);
    const auto descriptions = claimsOf(connection, windows);
    for (std::size_t index = 0; index < windows.size(); ++index) {
        if (!descriptions[index] || descriptions[index]->processIdentifier == 0)
            continue;
        const auto contents = contentsOf(connection, windows[index]);
        if (!contents)
            return {};
        return X11WindowAtPoint{descriptions[index]->processIdentifier, *contents};
    }
    return {};
}

std::optional<X11WindowDescription> workWindowAt(X11Connection& connection, Point point)
{
    if (!connection.isAlive())
        return {};
    const auto windows = windowsAt(connection, point);
    const auto managed = managedWindows(connection);
    const auto found
        = std::find_first_of(windows.begin(), windows.end(), managed.begin(), managed.end());
    if (found == windows.end())
        return {};
    const X11WindowKinds kinds([&](std::string_view name) { return connection.atom(name); });
    const auto kind = X11WindowKindRequest(connection, *found).kind(kinds);
    if (kind.isDesktop || kind.isFurniture)
        return {};
    return describe(connection, {*found}).front();
}

} // namespace brindlex
