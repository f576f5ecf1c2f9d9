#include "platform/linux/panels/X11OpenWindows.h"

#include "platform/linux/windows/X11WindowKind.h"
#include "platform/linux/windows/X11WindowReading.h"
#include "platform/linux/windows/X11WindowStack.h"

#include <algorithm>

namespace brindlex {
namespace {

/// All that the window manager looks after, the topmost first.
std::vector<xcb_window_t> fromTheTop(X11Connection& connection)
{
    if (auto windows = X11WindowStackRequest(connection).fromTheTop())
        return *windows;
    auto windows = managedWindows(connection);
    std::ranges::reverse(windows);
    return windows;
}

bool wouldBeNamed(const X11WindowKind& kind)
{
    return !kind.isDesktop && !kind.isFurniture && !kind.skipsTaskbar;
}

std::vector<xcb_window_t> withoutFurniture(
    X11Connection& connection, const std::vector<xcb_window_t>& windows)
{
    const X11WindowKinds kinds([&](std::string_view name) { return connection.atom(name); });
    std::vector<X11WindowKindRequest> requests;
    requests.reserve(windows.size());
    for (const auto window : windows)
        requests.emplace_back(connection, window);
    std::vector<xcb_window_t> kept;
    for (std::size_t index = 0; index < windows.size(); ++index)
        if (wouldBeNamed(requests[index].kind(kinds)))
            kept.push_back(windows[index]);
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
