#pragma once

#include "platform/BackgroundQueue.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace brindlex {

/// A background queue on a thread of its own.
///
/// To wake a sleeping thread costs who posts some microseconds, many times the price of posting
/// itself. With a `pause` the thread, when it has run what there was, looks for more by itself
/// after that time before it falls asleep for good: a steady trickle of work then wakes nobody and
/// is run in groups, for a delay of up to the pause. `drain` and the end do not wait for it.
class SerialQueue : public BackgroundQueue {
public:
    /// The thread is called `name`, as far as the system's length of such names goes.
    explicit SerialQueue(std::string name, std::chrono::milliseconds pause = {});
    ~SerialQueue() override;
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;

    void post(Work work) override;
    void drain() override;

private:
    void run();
    void pause(std::unique_lock<std::mutex>& lock);

    const std::string name_;
    const std::chrono::milliseconds pause_;
    std::mutex mutex_;
    std::condition_variable wakes_;
    std::condition_variable progresses_;
    std::vector<Work> work_;
    std::uint64_t posted_ = 0;
    std::uint64_t finished_ = 0;
    int drains_ = 0;
    bool isAsleep_ = false;
    bool isEnding_ = false;
    std::thread thread_;
};

} // namespace brindlex
