#include "platform/posix/PosixClock.h"
#include "platform/simulated/SimulatedClock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

namespace brindlex {
namespace {

template <typename TestedClock>
class ClockContract : public testing::Test {
};

using Clocks = testing::Types<SimulatedClock, PosixClock>;
TYPED_TEST_SUITE(ClockContract, Clocks);

TYPED_TEST(ClockContract, returnsAPlausibleDate)
{
    const TypeParam clock;
    EXPECT_GT(clock.now(), dateFromISO8601("2025-01-01T00:00:00Z"));
    EXPECT_LT(clock.now(), dateFromISO8601("2200-01-01T00:00:00Z"));
}

TYPED_TEST(ClockContract, hasAContinuousTimeThatNeverGoesBack)
{
    const TypeParam clock;
    auto last = clock.continuousTime();
    for (int reading = 0; reading < 10'000; ++reading) {
        const auto next = clock.continuousTime();
        ASSERT_GE(next, last);
        last = next;
    }
}

TEST(PosixClock, returnsTheTimeOfTheSystem)
{
    const auto before = std::time(nullptr);
    const auto now = PosixClock().now().unixTime();
    const auto after = std::time(nullptr);

    EXPECT_GE(std::floor(now) + 1, static_cast<double>(before));
    EXPECT_LE(std::floor(now), static_cast<double>(after) + 1);
}

TEST(PosixClock, movesOnBothClocks)
{
    const PosixClock clock;
    const auto date = clock.now();
    const auto time = clock.continuousTime();
    while (clock.continuousTime() - time < 0.002) { }

    EXPECT_NE(clock.now(), date);
}

TEST(SimulatedClock, movesWhenAdvancedAndMayBeSetBack)
{
    SimulatedClock clock(Date{1'000});
    const auto begin = clock.continuousTime();

    clock.advance(2.5);
    EXPECT_EQ(clock.now(), Date{1'002.5});
    EXPECT_EQ(clock.continuousTime() - begin, 2.5);

    clock.setNow(Date{-5});
    EXPECT_EQ(clock.now(), Date{-5});
    EXPECT_EQ(clock.continuousTime() - begin, 2.5);
}

} // namespace
} // namespace brindlex
