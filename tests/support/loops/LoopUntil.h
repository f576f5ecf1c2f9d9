#pragma once

#include "support/basics/Eventually.h"
#include "support/basics/StateReport.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <functional>

namespace brindlex {

/// Runs the Qt loop until the condition holds; whether it did so before the deadline.
inline bool loopUntil(
    const std::function<bool()>& condition, std::chrono::milliseconds deadline = usualDeadline)
{
    if (condition())
        return true;
    QEventLoop loop;
    QTimer again;
    QObject::connect(&again, &QTimer::timeout, &loop, [&] {
        if (condition())
            loop.exit(1);
    });
    again.start(1);
    QTimer::singleShot(deadline, &loop, [&] { loop.exit(0); });
    const bool isThere = loop.exec() == 1;
    if (!isThere)
        reportFailedWait(deadline);
    return isThere;
}

/// Runs the Qt loop for the period; whether the condition held each of the many times it was asked.
inline bool loopThroughout(std::chrono::milliseconds period, const std::function<bool()>& condition)
{
    return !loopUntil([&] { return !condition(); }, period);
}

} // namespace brindlex
