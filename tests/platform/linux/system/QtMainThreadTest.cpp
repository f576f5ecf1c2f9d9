#include "platform/linux/system/QtMainThread.h"

#include "support/loops/QtLoop.h"

#include <QEventLoop>
#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <memory>
#include <string>

namespace brindlex {
namespace {

/// How often this thread has fallen asleep of its own.
long voluntarySleeps()
{
    std::ifstream status("/proc/thread-self/status");
    for (std::string word; status >> word;)
        if (word == "voluntary_ctxt_switches:") {
            long count = 0;
            status >> count;
            return count;
        }
    return -1;
}

TEST(QtMainThread, sleepsThroughAsLongAsNothingIsDue)
{
    QtMainThread mainThread;
    const auto later = mainThread.after(3'600, [] {});
    QEventLoop loop;
    const auto end = mainThread.after(0.3, [&] { loop.quit(); });
    const auto before = voluntarySleeps();
    loop.exec();
    EXPECT_GE(before, 0);
    EXPECT_LE(voluntarySleeps() - before, 5);
}

TEST(QtMainThread, dropsWhatIsPostedAndDueAfterItHasGone)
{
    auto mainThread = std::make_unique<QtMainThread>();
    int ran = 0;
    mainThread->post([&] { ++ran; });
    auto delayed = mainThread->after(0.001, [&] { ++ran; });
    mainThread.reset();
    delayed.reset();
    QtLoop().runFor(0.02);
    EXPECT_EQ(ran, 0);
}

TEST(QtMainThread, takesDelaysOfAnyLength)
{
    QtMainThread mainThread;
    int ran = 0;
    const auto endless
        = mainThread.after(std::numeric_limits<double>::infinity(), [&] { ran += 10; });
    const auto veryLong = mainThread.after(1e12, [&] { ran += 10; });
    const auto none = mainThread.after(std::numeric_limits<double>::quiet_NaN(), [&] { ++ran; });
    QtLoop().runFor(0.02);
    EXPECT_EQ(ran, 1);
}

TEST(QtMainThread, letsOthersRunBetweenTheTicksOfTheShortestInterval)
{
    QtLoop loop;
    int ticks = 0;
    const auto ticking = loop.mainThread().every(0, [&] { ++ticks; });
    EXPECT_TRUE(loop.runUntil([&] { return ticks >= 3; }));
}

} // namespace
} // namespace brindlex
