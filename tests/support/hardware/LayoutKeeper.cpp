#include "support/hardware/LayoutKeeper.h"

#include "support/hardware/KeyboardGroup.h"
#include "support/screen/DesktopWindows.h"

#include <map>

namespace brindlex {
namespace {

constexpr std::chrono::milliseconds keepingInterval{2};

} // namespace

LayoutKeeper::LayoutKeeper(std::chrono::milliseconds delay)
    : thread_([this, delay] { keep(delay); })
{
}

LayoutKeeper::~LayoutKeeper()
{
    isOver_ = true;
    thread_.join();
}

void LayoutKeeper::keep(std::chrono::milliseconds delay)
{
    const XConnection server;
    const DesktopWindows windows(server);
    std::map<xcb_window_t, int> groups;
    auto front = windows.active();
    while (!isOver_) {
        const auto group = keyboardGroup(server);
        const auto active = windows.active();
        if (active == 0 || active == front) {
            groups[front] = group;
        } else {
            std::this_thread::sleep_for(delay);
            selectKeyboardGroup(server, groups[active]);
            front = active;
        }
        std::this_thread::sleep_for(keepingInterval);
    }
}

} // namespace brindlex
