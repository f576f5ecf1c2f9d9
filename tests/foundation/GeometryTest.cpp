#include "foundation/Geometry.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr Rect rectangle{{10, 20}, {30, 40}};

TEST(Geometry, givesARectanglesSides)
{
    EXPECT_EQ(rectangle.minX(), 10);
    EXPECT_EQ(rectangle.maxX(), 40);
    EXPECT_EQ(rectangle.minY(), 20);
    EXPECT_EQ(rectangle.maxY(), 60);
}

TEST(Geometry, countsTheLimitsOfAnEnlargedRectangleAsWithin)
{
    EXPECT_TRUE(rectangle.containsWithin(5, {5, 15}));
    EXPECT_TRUE(rectangle.containsWithin(5, {45, 65}));
    EXPECT_FALSE(rectangle.containsWithin(5, {4.9, 30}));
    EXPECT_FALSE(rectangle.containsWithin(5, {20, 65.1}));
}

TEST(Geometry, callsARectangleEmptyWithoutAnArea)
{
    EXPECT_FALSE(rectangle.isEmpty());
    EXPECT_TRUE((Rect{{0, 0}, {0, 5}}).isEmpty());
    EXPECT_TRUE((Rect{{0, 0}, {5, -1}}).isEmpty());
}

} // namespace
} // namespace brindlex
