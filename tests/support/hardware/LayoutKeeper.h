#pragma once

#include <atomic>
#include <chrono>
#include <thread>

namespace brindlex {

/// A program that keeps a keyboard group for each window, the first at the beginning, and brings it
/// back a while after the window has come to the front.
class LayoutKeeper {
public:
    explicit LayoutKeeper(std::chrono::milliseconds delay);
    ~LayoutKeeper();
    LayoutKeeper(const LayoutKeeper&) = delete;
    LayoutKeeper& operator=(const LayoutKeeper&) = delete;

private:
    void keep(std::chrono::milliseconds delay);

    std::atomic<bool> isOver_ = false;
    std::thread thread_;
};

} // namespace brindlex
