#include "platform/linux/panels/X11OpenWindows.h"

#include "platform/linux/windows/X11WindowReading.h"
#include "platform/linux/x11/X11Properties.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

constexpr std::uint32_t manyWindows = 4096 * sizeof(std::uint32_t);
constexpr std::uint32_t someAtoms = 32 * sizeof(std::uint32_t);

struct KindRequest {
    KindRequest(X11Connection& connection, xcb_window_t window)
        : types(connection, window, "_NET_WM_WINDOW_TYPE", someAtoms),
          states(connection, window, "_NET_WM_STATE", someAtoms)
    {
    }

    X11PropertyRequest types;
    X11PropertyRequest states;
};

/// All that the window manager looks after, the topmost first.
std::vector<xcb_window_t> fromTheTop(X11Connection& connection)
{
    auto windows = X11PropertyRequest(
        connection, connection.root(), "_NET_CLIENT_LIST_STACKING", manyWindows)
                       .values();
    if (!windows)
        windows = managedWindows(connection);
    std::ranges::reverse(*windows);
    return *windows;
}

std::vector<xcb_window_t> withoutFurniture(
    X11Connection& connection, const std::vector<xcb_window_t>& windows)
{
    const std::array kinds{connection.atom("_NET_WM_WINDOW_TYPE_DESKTOP"),
        connection.atom("_NET_WM_WINDOW_TYPE_DOCK"), connection.atom("_NET_WM_WINDOW_TYPE_MENU"),
        connection.atom("_NET_WM_WINDOW_TYPE_POPUP_MENU"),
        connection.atom("_NET_WM_WINDOW_TYPE_DROPDOWN_MENU"),
        connection.atom("_NET_WM_WINDOW_TYPE_TOOLTIP"),
        connection.atom("_NET_WM_WINDOW_TYPE_NOTIFICATION"),
        connection.atom("_NET_WM_WINDOW_TYPE_SPLASH"),
        connection.atom("_NET_WM_STATE_SKIP_TASKBAR")};
    std::vector<KindRequest> requests;
    requests.reserve(windows.size());
    for (const auto window : windows)
        requests.emplace_back(connection, window);
    std::vector<xcb_window_t> kept;
    for (std::size_t index = 0; index < windows.size(); ++index) {
        auto said = requests[index].types.values().value_or(std::vector<std::uint32_t>{});
        const auto states = requests[index].states.values().value_or(std::vector<std::uint32_t>{});
        said.insert(said.end(), states.begin(), states.end());
        if (std::ranges::find_first_of(said, kinds) == said.end())
            kept.push_back(windows[index]);
    }
    return kept;
}

} // namespace

std::vector<OpenWindow> openWindows(X11Connection& connection,
    const X11RunningApplications& applications, const RecentWindows& recent)
{
    const auto numbers = recent.ordered(withoutFurniture(connection, fromTheTop(connection)));
    const auto titles = windowTitles(connection, numbers);
    const auto descriptions = describe(connection, numbers);
    std::vector<OpenWindow> windows;
    for (std::size_t index = 0; index < numbers.size(); ++index)
        if (descriptions[index])
            windows.push_back({numbers[index], titles[index],
                applications.applicationOf(*descriptions[index]).localizedName.value_or("")});
    return windows;
}

} // namespace brindlex
