#include "mouse/FixedNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace brindlex {
namespace {

TEST(oneDecimal, writesOneDigitAfterThePoint)
{
    EXPECT_EQ(oneDecimal(8), "8.0");
    EXPECT_EQ(oneDecimal(-0.04), "-0.0");
    EXPECT_EQ(oneDecimal(0.25), "0.2");
    EXPECT_EQ(oneDecimal(16.55), "16.6");
    EXPECT_EQ(oneDecimal(Point{-1.5, 2000}), "-1.5,2000.0");
}

TEST(oneDecimal, hasRoomForAnyNumber)
{
    EXPECT_EQ(oneDecimal(std::numeric_limits<double>::lowest()).size(), 312u);
    EXPECT_EQ(oneDecimal(std::numeric_limits<double>::infinity()), "inf");
}

} // namespace
} // namespace brindlex
