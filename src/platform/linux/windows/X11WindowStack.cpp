#include "platform/linux/windows/X11WindowStack.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr std::uint32_t manyWindows = 4096 * sizeof(std::uint32_t);

} // namespace

X11WindowStackRequest::X11WindowStackRequest(X11Connection& connection)
    : stacking_(connection, connection.root(), "_NET_CLIENT_LIST_STACKING", manyWindows)
{
}

std::optional<std::vector<xcb_window_t>> X11WindowStackRequest::fromTheTop()
{
    auto windows = stacking_.values();
    if (windows)
        std::ranges::reverse(*windows);
    return windows;
}

} // namespace brindlex
