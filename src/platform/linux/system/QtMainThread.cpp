#include "platform/linux/system/QtMainThread.h"

#include <QMetaObject>
#include <QObject>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

namespace brindlex {
namespace {

/// The length that Qt is given: whole milliseconds, never less than was asked for but for what is
/// longer than the 24 days that it can count.
int timerLength(Seconds seconds)
{
    constexpr double longest = std::numeric_limits<int>::max();
    return seconds > 0 ? static_cast<int>(std::min(std::ceil(seconds * 1'000), longest)) : 0;
}

} // namespace

/// All timers of the main thread in one object. A timer may be taken away while it runs.
class QtMainThread::Timers : public QObject {
public:
    struct Timer {
        bool isRepeating = false;
        Work work{};
        int identifier = 0;
    };

    std::shared_ptr<const Timer> add(int milliseconds, Timer timer)
    {
        timer.identifier = startTimer(milliseconds, Qt::PreciseTimer);
        auto added = std::make_shared<const Timer>(std::move(timer));
        timers_.insert_or_assign(added->identifier, added);
        return added;
    }

    /// Does nothing for a timer that has gone, whose identifier another one may have by now.
    void remove(const std::shared_ptr<const Timer>& timer)
    {
        const auto found = timers_.find(timer->identifier);
        if (found == timers_.end() || found->second != timer)
            return;
        timers_.erase(found);
        killTimer(timer->identifier);
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        const auto found = timers_.find(event->timerId());
        if (found == timers_.end())
            return;
        const auto timer = found->second;
        if (!timer->isRepeating)
            remove(timer);
        timer->work();
    }

private:
    std::map<int, std::shared_ptr<const Timer>> timers_;
};

QtMainThread::QtMainThread() : timers_(std::make_shared<Timers>()) { }

QtMainThread::~QtMainThread() = default;

void QtMainThread::post(Work work)
{
    QMetaObject::invokeMethod(timers_.get(), std::move(work), Qt::QueuedConnection);
}

Subscription QtMainThread::after(Seconds delay, Work work)
{
    return start(timerLength(delay), false, std::move(work));
}

Subscription QtMainThread::every(Seconds interval, Work work)
{
    return start(std::max(timerLength(interval), 1), true, std::move(work));
}

Subscription QtMainThread::start(int milliseconds, bool isRepeating, Work work)
{
    auto timer = timers_->add(milliseconds, {isRepeating, std::move(work)});
    return Subscription([timers = std::weak_ptr(timers_), timer = std::move(timer)] {
        if (const auto present = timers.lock())
            present->remove(timer);
    });
}

} // namespace brindlex
