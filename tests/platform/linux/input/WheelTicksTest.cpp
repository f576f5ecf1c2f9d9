#include "platform/linux/input/WheelTicks.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace brindlex {
namespace {

std::vector<int> ticksOf(const std::vector<double>& pixels)
{
    WheelTicks wheel;
    std::vector<int> ticks;
    Seconds now = 100;
    for (const auto step : pixels)
        ticks.push_back(wheel.add(step, now += 0.016));
    return ticks;
}

TEST(WheelTicks, givesOneNotchForTenPixels)
{
    EXPECT_EQ(ticksOf({10, -10, 30, -25}), (std::vector{1, -1, 3, -3}));
}

TEST(WheelTicks, addsUpWhatIsLessThanANotch)
{
    EXPECT_EQ(ticksOf({2, 2, 2, 2, 2, 2, 2, 2, 2, 2}), (std::vector{0, 0, 1, 0, 0, 0, 0, 1, 0, 0}));
}

TEST(WheelTicks, losesAndInventsNothingOverAScroll)
{
    WheelTicks wheel;
    double pixels = 0;
    int ticks = 0;
    for (int step = 0; step < 1000; ++step) {
        const double now = step * 0.01;
        const double distance = 1 + step % 17 * 0.75;
        pixels += distance;
        ticks += wheel.add(distance, now);
        EXPECT_LE(std::abs(pixels - ticks * WheelTicks::pixelsPerNotch), 5.0) << step;
    }
}

TEST(WheelTicks, givesTheNotchOfAScrollThatWasRoundedDownOnItsWay)
{
    EXPECT_EQ(ticksOf({4, 3, 1, 1}), (std::vector{0, 1, 0, 0}));
}

TEST(WheelTicks, leavesNothingOverForTheOtherDirection)
{
    EXPECT_EQ(ticksOf({4, -4, 4, -4}), (std::vector{0, 0, 0, 0}));
    EXPECT_EQ(ticksOf({6, -6}), (std::vector{1, -1}));
}

TEST(WheelTicks, leavesNothingOverForALaterScroll)
{
    WheelTicks wheel;
    EXPECT_EQ(wheel.add(4, 1.0), 0);
    EXPECT_EQ(wheel.add(4, 1.31), 0);
    EXPECT_EQ(wheel.add(4, 1.6), 1);
}

TEST(WheelTicks, isNotMovedByNothingOrNonsense)
{
    EXPECT_EQ(ticksOf({4, 0, 4}), (std::vector{0, 0, 1}));
    EXPECT_EQ(ticksOf({std::numeric_limits<double>::quiet_NaN(),
                  std::numeric_limits<double>::infinity()}),
        (std::vector{0, 0}));
}

TEST(WheelTicks, boundsWhatIsAskedForAtOnceAndForgetsTheRest)
{
    EXPECT_EQ(ticksOf({1e12, 10, 1, 1e308, 10}), (std::vector{1000, 1, 0, 1000, 1}));
}

} // namespace
} // namespace brindlex
