#pragma once

#include "platform/linux/system/QtMainThread.h"
#include "platform/posix/PosixClock.h"

#include <QCoreApplication>
#include <QThread>

#include <functional>

namespace brindlex {

/// The real loop, run by a test. Has the form of `SimulatedLoop`.
class QtLoop {
public:
    MainThread& mainThread() { return mainThread_; }
    const Clock& clock() const { return clock_; }

    /// Bounded by a minute of the real time, which only a failing test waits for.
    bool runUntil(const std::function<bool()>& condition)
    {
        constexpr Seconds longest = 60;
        runWhile(longest, [&] { return !condition(); });
        return condition();
    }

    void runFor(Seconds interval)
    {
        runWhile(interval, [] { return true; });
    }

    void hold(Seconds interval)
    {
        QThread::usleep(static_cast<unsigned long>(interval * 1'000'000) + 1);
    }

private:
    void runWhile(Seconds longest, const std::function<bool()>& condition)
    {
        constexpr int milliseconds = 2;
        const auto end = clock_.continuousTime() + longest;
        // The loop wakes up for the condition, which nothing else may announce.
        const auto looks = mainThread_.every(milliseconds / 1'000.0, [] {});
        while (condition() && clock_.continuousTime() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    PosixClock clock_;
    QtMainThread mainThread_;
};

} // namespace brindlex
