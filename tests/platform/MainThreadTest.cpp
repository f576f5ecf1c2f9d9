#include "platform/MainThread.h"

#include "support/loops/QtLoop.h"
#include "support/loops/SimulatedLoop.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace brindlex {
namespace {

template <typename Loop>
class MainThreadContract : public testing::Test {
protected:
    MainThread& mainThread() { return loop.mainThread(); }
    MainThread::Work note(const std::string& word)
    {
        return [this, word] { noted.push_back(word); };
    }
    bool runUntilNoted(std::size_t words)
    {
        return loop.runUntil([&] { return noted.size() >= words; });
    }
    Seconds now() const { return loop.clock().continuousTime(); }

    Loop loop;
    std::vector<std::string> noted;
};

using Loops = testing::Types<SimulatedLoop, QtLoop>;
TYPED_TEST_SUITE(MainThreadContract, Loops);

using Words = std::vector<std::string>;

TYPED_TEST(MainThreadContract, runsPostedWorkInOrderAndNeverInsideTheCall)
{
    this->mainThread().post([&] {
        this->mainThread().post(this->note("third"));
        this->noted.push_back("first");
    });
    this->mainThread().post(this->note("second"));
    EXPECT_EQ(this->noted, Words{});

    ASSERT_TRUE(this->runUntilNoted(3));
    EXPECT_EQ(this->noted, (Words{"first", "second", "third"}));
}

TYPED_TEST(MainThreadContract, takesPostsFromOtherThreadsInTheirOrder)
{
    constexpr int posts = 500;
    std::vector<int> numbers;
    std::thread other([&] {
        for (int number = 0; number < posts; ++number)
            this->mainThread().post([&numbers, number] { numbers.push_back(number); });
    });
    other.join();
    ASSERT_TRUE(this->loop.runUntil([&] { return numbers.size() == posts; }));
    for (int number = 0; number < posts; ++number)
        EXPECT_EQ(numbers[static_cast<std::size_t>(number)], number);
}

TYPED_TEST(MainThreadContract, runsDelayedWorkOnceAndNotBeforeItsTime)
{
    const auto start = this->now();
    Seconds ran = 0;
    int times = 0;
    const auto delayed = this->mainThread().after(0.0105, [&] {
        ran = this->now();
        ++times;
    });
    ASSERT_TRUE(this->loop.runUntil([&] { return times > 0; }));
    this->loop.runFor(0.03);
    EXPECT_GE(ran - start, 0.0105);
    EXPECT_EQ(times, 1);
}

TYPED_TEST(MainThreadContract, runsWorkInTheOrderOfItsTimeThenOfItsCreation)
{
    const auto last = this->mainThread().after(0.03, this->note("last"));
    const auto first = this->mainThread().after(0.01, this->note("first"));
    const auto second = this->mainThread().after(0.02, this->note("second"));
    ASSERT_TRUE(this->runUntilNoted(3));
    EXPECT_EQ(this->noted, (Words{"first", "second", "last"}));
}

TYPED_TEST(MainThreadContract, takesANegativeDelayForNone)
{
    const auto negative = this->mainThread().after(-5, this->note("negative"));
    const auto none = this->mainThread().after(0, this->note("none"));
    EXPECT_EQ(this->noted, Words{});
    ASSERT_TRUE(this->runUntilNoted(2));
    EXPECT_EQ(this->noted, (Words{"negative", "none"}));
}

TYPED_TEST(MainThreadContract, doesNotRunCancelledWork)
{
    auto cancelled = this->mainThread().after(0.005, this->note("cancelled"));
    const auto kept = this->mainThread().after(0.01, this->note("kept"));
    cancelled.reset();
    ASSERT_TRUE(this->runUntilNoted(1));
    this->loop.runFor(0.02);
    EXPECT_EQ(this->noted, Words{"kept"});
}

TYPED_TEST(MainThreadContract, cancelsFromInsideOtherWorkThatIsDueAtTheSameTime)
{
    Subscription second;
    const auto first = this->mainThread().after(0.005, [&] {
        this->noted.push_back("first");
        second.reset();
    });
    second = this->mainThread().after(0.005, this->note("second"));
    this->loop.hold(0.02);
    ASSERT_TRUE(this->runUntilNoted(1));
    this->loop.runFor(0.02);
    EXPECT_EQ(this->noted, Words{"first"});
}

TYPED_TEST(MainThreadContract, repeatsUntilItIsCancelledFromInside)
{
    Subscription repeated;
    const auto start = this->now();
    std::vector<Seconds> times;
    repeated = this->mainThread().every(0.005, [&] {
        times.push_back(this->now() - start);
        if (times.size() == 3)
            repeated.reset();
    });
    ASSERT_TRUE(this->loop.runUntil([&] { return times.size() == 3; }));
    this->loop.runFor(0.02);
    ASSERT_EQ(times.size(), 3U);
    EXPECT_GE(times[0], 0.005);
    EXPECT_GE(times[2], 0.015);
}

TYPED_TEST(MainThreadContract, runsRepeatedWorkOnceForAllTheIntervalsItMissed)
{
    const auto repeated = this->mainThread().every(0.05, this->note("tick"));
    this->loop.hold(0.22);
    ASSERT_TRUE(this->runUntilNoted(1));
    EXPECT_EQ(this->noted.size(), 1U);
    ASSERT_TRUE(this->runUntilNoted(2));
    EXPECT_EQ(this->noted.size(), 2U);
}

TYPED_TEST(MainThreadContract, letsASubscriptionThatHasRunOutGoWithoutHarm)
{
    auto ranOut = this->mainThread().after(0, this->note("one"));
    ASSERT_TRUE(this->runUntilNoted(1));
    const auto next = this->mainThread().after(0.005, this->note("two"));
    ranOut.reset();
    ASSERT_TRUE(this->runUntilNoted(2));
    EXPECT_EQ(this->noted, (Words{"one", "two"}));
}

TYPED_TEST(MainThreadContract, runsWorkThatIsAddedFromInsideWork)
{
    Subscription inner;
    const auto outer = this->mainThread().after(
        0.002, [&] { inner = this->mainThread().after(0.002, this->note("inner")); });
    ASSERT_TRUE(this->runUntilNoted(1));
    EXPECT_EQ(this->noted, Words{"inner"});
}

} // namespace
} // namespace brindlex
