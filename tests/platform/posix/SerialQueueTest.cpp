#include "platform/posix/SerialQueue.h"

#include <gtest/gtest.h>

#include <csignal>
#include <future>
#include <pthread.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

std::string nameOfTheThread(SerialQueue& queue)
{
    char name[64] = {};
    queue.post([&] { ::pthread_getname_np(::pthread_self(), name, sizeof name); });
    queue.drain();
    return name;
}

TEST(SerialQueue, namesItsThreadAsFarAsTheSystemLetsIt)
{
    SerialQueue shortName("log");
    EXPECT_EQ(nameOfTheThread(shortName), "log");
    SerialQueue longName("Brindlex.Log.file");
    EXPECT_EQ(nameOfTheThread(longName), "Brindlex.Log.fi");
}

TEST(SerialQueue, runsItsWorkOnOneOtherThread)
{
    SerialQueue queue("queue");
    std::thread::id first;
    std::thread::id second;
    queue.post([&] { first = std::this_thread::get_id(); });
    queue.drain();
    queue.post([&] { second = std::this_thread::get_id(); });
    queue.drain();

    EXPECT_EQ(first, second);
    EXPECT_NE(first, std::this_thread::get_id());
}

TEST(SerialQueue, returnsFromPostingWhileEarlierWorkIsHeldUp)
{
    SerialQueue queue("queue");
    std::promise<void> gate;
    bool hasRun = false;
    queue.post([&] { gate.get_future().wait(); });
    queue.post([&] { hasRun = true; });

    EXPECT_FALSE(hasRun);
    gate.set_value();
    queue.drain();
    EXPECT_TRUE(hasRun);
}

TEST(SerialQueue, runsWorkByItselfAlsoAfterAPause)
{
    for (const auto pause : {0ms, 1ms, 20ms}) {
        SerialQueue queue("queue", pause);
        for (int round = 0; round < 20; ++round) {
            std::promise<void> ran;
            queue.post([&] { ran.set_value(); });
            ASSERT_EQ(ran.get_future().wait_for(30s), std::future_status::ready);
        }
    }
}

TEST(SerialQueue, neitherDrainsNorEndsInThePaceOfItsPauses)
{
    const auto begin = std::chrono::steady_clock::now();
    bool hasRun = false;
    {
        SerialQueue queue("queue", 1h);
        queue.post([] {});
        queue.drain();
        queue.post([] {});
        queue.drain();
        queue.post([&] { hasRun = true; });
    }
    EXPECT_TRUE(hasRun);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 30min);
}

TEST(SerialQueue, leavesSignalsToTheOtherThreads)
{
    SerialQueue queue("queue");
    sigset_t blocked;
    queue.post([&] { ::pthread_sigmask(SIG_SETMASK, nullptr, &blocked); });
    queue.drain();
    sigset_t own;
    ::pthread_sigmask(SIG_SETMASK, nullptr, &own);

    EXPECT_EQ(sigismember(&blocked, SIGTERM), 1);
    EXPECT_EQ(sigismember(&blocked, SIGINT), 1);
    EXPECT_EQ(sigismember(&own, SIGTERM), 0);
}

} // namespace
} // namespace brindlex
