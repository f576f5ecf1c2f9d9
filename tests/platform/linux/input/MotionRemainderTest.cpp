#include "platform/linux/input/MotionRemainder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace brindlex {
namespace {

using Pixels = MotionRemainder::Pixels;
using Number = std::numeric_limits<double>;

TEST(MotionRemainder, passesWholePixelsOnAtOnce)
{
    MotionRemainder remainder;
    EXPECT_EQ(remainder.add(3, -7), (Pixels{3, -7}));
    EXPECT_EQ(remainder.add(0, 0), Pixels{});
    EXPECT_EQ(remainder.add(-0.0, 1), (Pixels{0, 1}));
}

TEST(MotionRemainder, keepsWhatIsLessThanAPixelForTheNextMotion)
{
    MotionRemainder remainder;
    EXPECT_TRUE(remainder.add(0.5, 0.75).isNone());
    EXPECT_EQ(remainder.add(0.5, 0.5), (Pixels{1, 1}));
    EXPECT_EQ(remainder.add(0, 0.75), (Pixels{0, 1}));
}

TEST(MotionRemainder, setsTheWayBackOffAgainstWhatItKept)
{
    MotionRemainder remainder;
    EXPECT_EQ(remainder.add(1.75, -1.75), (Pixels{1, -1}));
    EXPECT_TRUE(remainder.add(-0.75, 0.75).isNone());
    EXPECT_EQ(remainder.add(-1, 1), (Pixels{-1, 1}));
}

TEST(MotionRemainder, keepsTheAxesApart)
{
    MotionRemainder remainder;
    EXPECT_TRUE(remainder.add(0.75, 0).isNone());
    EXPECT_TRUE(remainder.add(0, 0.75).isNone());
    EXPECT_FALSE((Pixels{0, 1}).isNone());
    EXPECT_FALSE((Pixels{-1, 0}).isNone());
}

TEST(MotionRemainder, losesLessThanAPixelOverAWholeWay)
{
    for (const double step : {0.001, 0.1, 1 / 3.0, 0.999, 1.5, -0.01, -2.7}) {
        MotionRemainder remainder;
        long pixels = 0;
        for (int count = 1; count <= 5000; ++count) {
            pixels += remainder.add(step, 0).x;
            ASSERT_LT(std::abs(step * count - static_cast<double>(pixels)), 1 + 1e-6)
                << step << " " << count;
        }
    }
}

TEST(MotionRemainder, isNotMovedByWhatIsNoNumber)
{
    MotionRemainder remainder;
    EXPECT_TRUE(remainder.add(0.5, 0.5).isNone());
    for (const double nonsense : {Number::quiet_NaN(), Number::infinity(), -Number::infinity()})
        EXPECT_TRUE(remainder.add(nonsense, nonsense).isNone()) << nonsense;
    EXPECT_EQ(remainder.add(0.5, Number::quiet_NaN()), (Pixels{1, 0}));
    EXPECT_EQ(remainder.add(0, 0.5), (Pixels{0, 1}));
}

TEST(MotionRemainder, boundsWhatIsBeyondEveryScreenAndForgetsTheRest)
{
    constexpr int most = std::numeric_limits<int>::max();
    MotionRemainder remainder;
    EXPECT_EQ(remainder.add(1e10, -1e300), (Pixels{most, -most}));
    EXPECT_EQ(remainder.add(1, -1), (Pixels{1, -1}));
    EXPECT_EQ(remainder.add(Number::max(), Number::lowest()), (Pixels{most, -most}));
    EXPECT_EQ(remainder.add(2147483647.0, -2147483648.0), (Pixels{most, -most}));
    EXPECT_TRUE(remainder.add(Number::denorm_min(), 0).isNone());
}

} // namespace
} // namespace brindlex
