#include "mouse/MouseGestureDragState.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

namespace brindlex {
namespace {

constexpr Point origin{100, 100};

MouseGestureDragState dragged(double dx, double dy, double threshold = 30)
{
    MouseGestureDragState press{origin, 0, {}, false, Date{5}};
    press.update({origin.x + dx, origin.y + dy}, threshold);
    return press;
}

TEST(MouseGestureDragState, locksAtExactlyTheThreshold)
{
    EXPECT_EQ(dragged(30, 0).lockedDirection, MouseDirection::right);
    EXPECT_EQ(dragged(18, 24).lockedDirection, MouseDirection::down);
    EXPECT_EQ(dragged(29.9999999, 0).lockedDirection, std::nullopt);
    EXPECT_EQ(dragged(30, 0, std::nextafter(30.0, 31.0)).lockedDirection, std::nullopt);
    EXPECT_EQ(dragged(30.0000001, 0).lockedDirection, MouseDirection::right);
}

TEST(MouseGestureDragState, countsADiagonalAsHorizontal)
{
    using Row = std::tuple<double, double, MouseDirection>;
    const std::vector<Row> rows{
        {30, 30, MouseDirection::right},
        {-30, 30, MouseDirection::left},
        {30, -30, MouseDirection::right},
        {-30, -30, MouseDirection::left},
        {0, 30, MouseDirection::down},
        {0, -30, MouseDirection::up},
        {30, 0, MouseDirection::right},
        {-30, 0, MouseDirection::left},
        {30, 31, MouseDirection::down},
        {-30, -31, MouseDirection::up},
    };
    for (const auto& [dx, dy, direction] : rows)
        EXPECT_EQ(dragged(dx, dy).lockedDirection, direction) << dx << " " << dy;
}

TEST(MouseGestureDragState, tellsTheSidesApartByTheSignHoweverShortTheWay)
{
    constexpr double threshold = 0.25;
    EXPECT_EQ(dragged(0, 0.25, threshold).lockedDirection, MouseDirection::down);
    EXPECT_EQ(dragged(0, -0.25, threshold).lockedDirection, MouseDirection::up);
    EXPECT_EQ(dragged(0.25, 0, threshold).lockedDirection, MouseDirection::right);
    EXPECT_EQ(dragged(-0.25, 0, threshold).lockedDirection, MouseDirection::left);
}

TEST(MouseGestureDragState, remembersTheGreatestDistance)
{
    auto press = dragged(3, 4);
    EXPECT_EQ(press, (MouseGestureDragState{origin, 5, {}, false, Date{5}}));

    press.update({101, 100}, 30);
    EXPECT_EQ(press.maxDisplacement, 5);
}

TEST(MouseGestureDragState, doesNotLookAgainAtADistanceThatIsNotGreater)
{
    auto press = dragged(3, 4, 30);

    press.update({105, 100}, 1);

    EXPECT_EQ(press.lockedDirection, std::nullopt);
}

TEST(MouseGestureDragState, takesTheDirectionOfItsFarthestPoint)
{
    auto press = dragged(30, 0);

    press.update({100, 140}, 30);
    EXPECT_EQ(press.lockedDirection, MouseDirection::down);
    press.update({61, 100}, 30);
    EXPECT_EQ(press.lockedDirection, MouseDirection::down);
    press.update({100, 50}, 30);
    EXPECT_EQ(press.lockedDirection, MouseDirection::up);
}

TEST(MouseGestureDragState, staysUnlockedOnAPointThatIsNone)
{
    EXPECT_EQ(dragged(std::nan(""), 0), dragged(0, 0));
}

} // namespace
} // namespace brindlex
