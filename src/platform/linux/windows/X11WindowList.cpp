#include "platform/linux/windows/X11WindowList.h"

#include "platform/linux/x11/X11Properties.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

constexpr std::uint32_t manyWindows = 4096 * sizeof(std::uint32_t);
constexpr std::uint32_t someAtoms = 32 * sizeof(std::uint32_t);
constexpr std::uint32_t allDesktops = 0xFFFFFFFF;

/// What is asked about one window, all at once.
struct WindowQuestions {
    WindowQuestions(X11Connection& connection, xcb_window_t window)
        : frame(connection, window, "_NET_FRAME_EXTENTS", 4 * sizeof(std::uint32_t)),
          shadow(connection, window, "_GTK_FRAME_EXTENTS", 4 * sizeof(std::uint32_t)),
          opacity(connection, window, "_NET_WM_WINDOW_OPACITY", sizeof(std::uint32_t)),
          desktop(connection, window, "_NET_WM_DESKTOP", sizeof(std::uint32_t)),
          state(connection, window, "_NET_WM_STATE", someAtoms),
          type(connection, window, "_NET_WM_WINDOW_TYPE", someAtoms),
          attributes(xcb_get_window_attributes(connection.get(), window)),
          geometry(xcb_get_geometry(connection.get(), window)),
          origin(xcb_translate_coordinates(connection.get(), window, connection.root(), 0, 0))
    {
    }

    X11PropertyRequest frame;
    X11PropertyRequest shadow;
    X11PropertyRequest opacity;
    X11PropertyRequest desktop;
    X11PropertyRequest state;
    X11PropertyRequest type;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t origin;
};

bool has(const std::optional<std::vector<std::uint32_t>>& values, xcb_atom_t atom)
{
    return values && std::ranges::find(*values, atom) != values->end();
}

std::optional<std::uint32_t> first(std::optional<std::vector<std::uint32_t>> values)
{
    return values && !values->empty() ? std::optional(values->front()) : std::nullopt;
}

/// The window without its invisible shadow and with the frame that the window manager drew.
std::optional<Rect> boundsOf(X11Connection& connection, WindowQuestions& questions)
{
    const X11Message<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection.get(), questions.geometry, nullptr));
    const X11Message<xcb_translate_coordinates_reply_t> origin(
        xcb_translate_coordinates_reply(connection.get(), questions.origin, nullptr));
    const auto frame = questions.frame.values();
    const auto shadow = questions.shadow.values();
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

} // namespace

std::vector<WindowInfo> X11WindowList::onScreen()
{
    auto& connection = connection_;
    X11PropertyRequest stackingRequest(
        connection, connection.root(), "_NET_CLIENT_LIST_STACKING", manyWindows);
    X11PropertyRequest desktopRequest(
        connection, connection.root(), "_NET_CURRENT_DESKTOP", sizeof(std::uint32_t));
    auto frontToBack = stackingRequest.values().value_or(std::vector<std::uint32_t>{});
    std::ranges::reverse(frontToBack);
    const auto current = first(desktopRequest.values());
    const auto ofDesktop = connection.atom("_NET_WM_WINDOW_TYPE_DESKTOP");
    const auto hidden = connection.atom("_NET_WM_STATE_HIDDEN");
    const auto above = connection.atom("_NET_WM_STATE_ABOVE");
    const std::array raisedTypes{connection.atom("_NET_WM_WINDOW_TYPE_DOCK"),
        connection.atom("_NET_WM_WINDOW_TYPE_MENU"),
        connection.atom("_NET_WM_WINDOW_TYPE_POPUP_MENU"),
        connection.atom("_NET_WM_WINDOW_TYPE_DROPDOWN_MENU"),
        connection.atom("_NET_WM_WINDOW_TYPE_TOOLTIP"),
        connection.atom("_NET_WM_WINDOW_TYPE_NOTIFICATION"),
        connection.atom("_NET_WM_WINDOW_TYPE_SPLASH")};

    std::vector<WindowQuestions> questions;
    questions.reserve(frontToBack.size());
    for (const auto window : frontToBack)
        questions.emplace_back(connection, window);

    std::vector<WindowInfo> windows;
    for (auto& question : questions) {
        const X11Message<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection.get(), question.attributes, nullptr));
        const auto types = question.type.values();
        const auto states = question.state.values();
        const auto desktop = first(question.desktop.values());
        const auto opacity = first(question.opacity.values());
        const auto bounds = boundsOf(connection, question);
        const bool isElsewhere
            = desktop && current && *desktop != allDesktops && *desktop != *current;
        const bool isShown = attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE
            && !has(states, hidden) && !isElsewhere;
        if (!isShown || has(types, ofDesktop))
            continue;
        const bool isRaised = has(states, above)
            || std::ranges::any_of(raisedTypes, [&](xcb_atom_t type) { return has(types, type); });
        windows.push_back(
            {isRaised ? 1 : 0, opacity ? *opacity / double(0xFFFFFFFF) : 1.0, bounds});
    }
    return windows;
}

} // namespace brindlex
