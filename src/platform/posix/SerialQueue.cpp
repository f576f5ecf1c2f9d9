#include "platform/posix/SerialQueue.h"

#include <csignal>
#include <pthread.h>
#include <utility>

namespace brindlex {
namespace {

/// The call has one form on Linux and another on macOS.
template <typename Name>
void nameThisThread(Name name)
{
    if constexpr (requires { ::pthread_setname_np(::pthread_self(), name); })
        ::pthread_setname_np(::pthread_self(), name);
    else
        ::pthread_setname_np(name);
}

constexpr std::size_t longestThreadName = 15;

/// Keeps signals away from threads that begin while it lives: they are the main thread's.
class SignalsBlocked {
public:
    SignalsBlocked()
    {
        sigset_t all;
        sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &before_);
    }
    ~SignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    SignalsBlocked(const SignalsBlocked&) = delete;
    SignalsBlocked& operator=(const SignalsBlocked&) = delete;

private:
    sigset_t before_;
};

} // namespace

SerialQueue::SerialQueue(std::string name, std::chrono::milliseconds pause)
    : name_(std::move(name)), pause_(pause)
{
    const SignalsBlocked signalsBlocked;
    thread_ = std::thread([this] { run(); });
}

SerialQueue::~SerialQueue()
{
    {
        const std::lock_guard guard(mutex_);
        isEnding_ = true;
    }
    wakes_.notify_one();
    thread_.join();
}

void SerialQueue::post(Work work)
{
    bool wasAsleep = false;
    {
        const std::lock_guard guard(mutex_);
        work_.push_back(std::move(work));
        ++posted_;
        wasAsleep = std::exchange(isAsleep_, false);
    }
    if (wasAsleep)
        wakes_.notify_one();
}

void SerialQueue::drain()
{
    if (std::this_thread::get_id() == thread_.get_id())
        return;
    std::unique_lock lock(mutex_);
    const auto last = posted_;
    ++drains_;
    wakes_.notify_one();
    progresses_.wait(lock, [&] { return finished_ >= last; });
    --drains_;
}

void SerialQueue::run()
{
    nameThisThread(name_.substr(0, longestThreadName).c_str());
    std::vector<Work> batch;
    std::unique_lock lock(mutex_);
    for (;;) {
        isAsleep_ = true;
        wakes_.wait(lock, [&] { return !work_.empty() || isEnding_; });
        isAsleep_ = false;
        if (work_.empty())
            return;
        batch.swap(work_);
        lock.unlock();
        for (auto& work : batch)
            std::exchange(work, nullptr)();
        lock.lock();
        finished_ += batch.size();
        batch.clear();
        progresses_.notify_all();
        pause(lock);
    }
}

void SerialQueue::pause(std::unique_lock<std::mutex>& lock)
{
    if (pause_ > pause_.zero())
        wakes_.wait_for(lock, pause_, [&] { return isEnding_ || drains_ > 0; });
}

} // namespace brindlex
