#include "support/hardware/LayoutGuard.h"

#include "support/hardware/KeyboardGroup.h"

namespace brindlex {
namespace {

constexpr std::chrono::milliseconds guardingInterval{2};

} // namespace

LayoutGuard::LayoutGuard(int group, std::chrono::milliseconds delay)
    : thread_([this, group, delay] { guard(group, delay); })
{
}

LayoutGuard::~LayoutGuard()
{
    isOver_ = true;
    thread_.join();
}

void LayoutGuard::guard(int group, std::chrono::milliseconds delay)
{
    const XConnection server;
    while (!isOver_) {
        std::this_thread::sleep_for(guardingInterval);
        if (keyboardGroup(server) == group)
            continue;
        std::this_thread::sleep_for(delay);
        selectKeyboardGroup(server, group);
        ++timesUndone_;
    }
}

} // namespace brindlex
