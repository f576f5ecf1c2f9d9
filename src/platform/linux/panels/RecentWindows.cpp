#include "platform/linux/panels/RecentWindows.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr std::size_t mostWindows = 256;

} // namespace

void RecentWindows::note(std::uint32_t window)
{
    if (window == 0)
        return;
    std::erase(lastFirst_, window);
    lastFirst_.insert(lastFirst_.begin(), window);
    if (lastFirst_.size() > mostWindows)
        lastFirst_.resize(mostWindows);
}

std::vector<std::uint32_t> RecentWindows::ordered(std::vector<std::uint32_t> windows) const
{
    std::ranges::stable_sort(windows, {}, [this](std::uint32_t window) {
        return std::ranges::find(lastFirst_, window) - lastFirst_.begin();
    });
    return windows;
}

} // namespace brindlex
