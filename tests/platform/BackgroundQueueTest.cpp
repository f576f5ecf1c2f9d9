#include "platform/posix/SerialQueue.h"
#include "platform/simulated/SimulatedQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <numeric>
#include <thread>
#include <vector>

namespace brindlex {
namespace {

/// A serial queue that looks for more work by itself.
class PausingQueue : public SerialQueue {
public:
    PausingQueue() : SerialQueue("pausing", std::chrono::milliseconds(5)) { }
};

class PlainQueue : public SerialQueue {
public:
    PlainQueue() : SerialQueue("a name that is longer than the system takes") { }
};

template <typename Queue>
class BackgroundQueueContract : public testing::Test {
};

using Queues = testing::Types<SimulatedQueue, PlainQueue, PausingQueue>;
TYPED_TEST_SUITE(BackgroundQueueContract, Queues);

TYPED_TEST(BackgroundQueueContract, runsWorkInTheOrderOfPosting)
{
    TypeParam queue;
    std::vector<int> ran;
    for (int number = 0; number < 1'000; ++number)
        queue.post([&ran, number] { ran.push_back(number); });
    queue.drain();

    std::vector<int> expected(1'000);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(ran, expected);
}

TYPED_TEST(BackgroundQueueContract, hasRunWhatWasPostedBeforeADrain)
{
    TypeParam queue;
    int ran = 0;
    for (int number = 0; number < 200; ++number) {
        queue.post([&ran] { ++ran; });
        queue.drain();
        ASSERT_EQ(ran, number + 1);
    }
    queue.drain();
    EXPECT_EQ(ran, 200);
}

TYPED_TEST(BackgroundQueueContract, takesWorkFromItsOwnWorkAndRunsItAfterwards)
{
    TypeParam queue;
    std::vector<int> ran;
    queue.post([&] {
        queue.post([&] { ran.push_back(2); });
        queue.drain();
        ran.push_back(1);
    });
    queue.drain();
    queue.drain();

    EXPECT_EQ(ran, (std::vector{1, 2}));
}

TYPED_TEST(BackgroundQueueContract, runsWhatWaitsWhenItEnds)
{
    std::atomic<int> ran = 0;
    {
        TypeParam queue;
        for (int number = 0; number < 100; ++number)
            queue.post([&ran] { ++ran; });
    }
    EXPECT_EQ(ran, 100);
}

TYPED_TEST(BackgroundQueueContract, runsOnePieceOfWorkAtATimeForManyThreads)
{
    TypeParam queue;
    int ran = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.emplace_back([&] {
            for (int number = 0; number < 500; ++number)
                queue.post([&ran] { ++ran; });
            queue.drain();
        });
    for (auto& thread : threads)
        thread.join();
    queue.drain();

    EXPECT_EQ(ran, 4'000);
}

TYPED_TEST(BackgroundQueueContract, letsGoOfWorkThatHasRun)
{
    TypeParam queue;
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watched = held;
    queue.post([held = std::move(held)] {});
    queue.drain();

    EXPECT_TRUE(watched.expired());
}

} // namespace
} // namespace brindlex
