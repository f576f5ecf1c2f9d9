#include "platform/linux/windows/X11SessionLock.h"

#include "platform/linux/x11/X11Properties.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace brindlex {
namespace {

/// The smallest screen that a locker could have to cover.
constexpr int leastWidth = 640;
constexpr int leastHeight = 480;

constexpr std::array<std::string_view, 4> menuTypes{"_NET_WM_WINDOW_TYPE_MENU",
    "_NET_WM_WINDOW_TYPE_POPUP_MENU", "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU",
    "_NET_WM_WINDOW_TYPE_COMBO"};

bool isOthers(std::uint8_t status)
{
    return status == XCB_GRAB_STATUS_ALREADY_GRABBED || status == XCB_GRAB_STATUS_FROZEN;
}

std::vector<xcb_window_t> topLevelsFromTheTop(X11Connection& connection)
{
    const X11Message<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
        connection.get(), xcb_query_tree(connection.get(), connection.root()), nullptr));
    if (!tree)
        return {};
    const auto* const first = xcb_query_tree_children(tree.get());
    std::vector<xcb_window_t> windows(first, first + xcb_query_tree_children_length(tree.get()));
    std::ranges::reverse(windows);
    return windows;
}

/// The requests for what there is to know of one window, sent together with those for others.
class UnmanagedWindowRequest {
public:
    UnmanagedWindowRequest(X11Connection& connection, xcb_window_t window)
        : server_(connection.get()), attributes_(xcb_get_window_attributes(server_, window)),
          geometry_(xcb_get_geometry(server_, window)),
          types_(connection, window, "_NET_WM_WINDOW_TYPE", someAtoms)
    {
    }

    /// Nothing for a window that is managed, or not to be seen, or has gone. May be called once.
    std::optional<X11UnmanagedWindow> window(std::span<const xcb_atom_t> menuAtoms)
    {
        const X11Message<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(server_, attributes_, nullptr));
        const X11Message<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(server_, geometry_, nullptr));
        const auto types = types_.values().value_or(std::vector<std::uint32_t>{});
        if (!attributes || !geometry || !attributes->override_redirect
            || attributes->map_state != XCB_MAP_STATE_VIEWABLE)
            return {};
        return X11UnmanagedWindow{
            .isMenu = std::ranges::find_first_of(types, menuAtoms) != types.end(),
            .coversScreen = geometry->width >= leastWidth && geometry->height >= leastHeight};
    }

private:
    xcb_connection_t* server_;
    xcb_get_window_attributes_cookie_t attributes_;
    xcb_get_geometry_cookie_t geometry_;
    X11PropertyRequest types_;
};

std::vector<X11UnmanagedWindow> unmanagedWindows(X11Connection& connection)
{
    std::array<xcb_atom_t, menuTypes.size()> menuAtoms{};
    std::ranges::transform(
        menuTypes, menuAtoms.begin(), [&](auto name) { return connection.atom(name); });
    std::vector<UnmanagedWindowRequest> requests;
    for (const auto window : topLevelsFromTheTop(connection))
        requests.emplace_back(connection, window);
    std::vector<X11UnmanagedWindow> windows;
    for (auto& request : requests)
        if (const auto window = request.window(menuAtoms))
            windows.push_back(*window);
    return windows;
}

} // namespace

bool isMenuOpen(std::span<const X11UnmanagedWindow> windows)
{
    const auto deciding = std::ranges::find_if(
        windows, [](const auto& window) { return window.isMenu || window.coversScreen; });
    return deciding != windows.end() && deciding->isMenu;
}

X11SessionLock::X11SessionLock(X11Connection& connection)
    : connection_(connection), hidden_(xcb_generate_id(connection.get()))
{
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, hidden_, connection_.root(), -1, -1,
        1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

X11SessionLock::~X11SessionLock() { xcb_destroy_window(connection_.get(), hidden_); }

bool X11SessionLock::isLocked()
{
    return isAllInputTaken() && !isMenuOpen(unmanagedWindows(connection_));
}

bool X11SessionLock::isAllInputTaken()
{
    // The server does not say who has taken the input. What is asked for here it never gives, as
    // the window is not on the screen; but it says first that somebody else has it.
    auto* const server = connection_.get();
    constexpr auto async = XCB_GRAB_MODE_ASYNC;
    const auto pointerRequest = xcb_grab_pointer(
        server, false, hidden_, 0, async, async, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    const auto keysRequest
        = xcb_grab_keyboard(server, false, hidden_, XCB_CURRENT_TIME, async, async);
    const X11Message<xcb_grab_pointer_reply_t> pointer(
        xcb_grab_pointer_reply(server, pointerRequest, nullptr));
    const X11Message<xcb_grab_keyboard_reply_t> keys(
        xcb_grab_keyboard_reply(server, keysRequest, nullptr));
    return pointer && keys && isOthers(pointer->status) && isOthers(keys->status);
}

} // namespace brindlex
