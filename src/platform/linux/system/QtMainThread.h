#pragma once

#include "platform/MainThread.h"

#include <memory>

namespace brindlex {

/// The main thread with Qt's event loop. Made on it, beside the application object; `after` and
/// `every` are for the main thread only. The loop sleeps as long as nothing is due.
class QtMainThread : public MainThread {
public:
    QtMainThread();
    ~QtMainThread() override;

    void post(Work work) override;
    Subscription after(Seconds delay, Work work) override;
    Subscription every(Seconds interval, Work work) override;

private:
    class Timers;

    Subscription start(int milliseconds, bool isRepeating, Work work);

    std::shared_ptr<Timers> timers_;
};

} // namespace brindlex
