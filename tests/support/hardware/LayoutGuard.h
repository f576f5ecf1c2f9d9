#pragma once

#include <atomic>
#include <chrono>
#include <thread>

namespace brindlex {

/// A program that lets nobody else change the keyboard group: it undoes each change after a while,
/// as some shells do.
class LayoutGuard {
public:
    LayoutGuard(int group, std::chrono::milliseconds delay);
    ~LayoutGuard();
    LayoutGuard(const LayoutGuard&) = delete;
    LayoutGuard& operator=(const LayoutGuard&) = delete;

    /// How many changes it has undone.
    int timesUndone() const { return timesUndone_; }

private:
    void guard(int group, std::chrono::milliseconds delay);

    std::atomic<bool> isOver_ = false;
    std::atomic<int> timesUndone_ = 0;
    std::thread thread_;
};

} // namespace brindlex
