#include "mouse/WindowEdge.h"

#include "platform/simulated/SimulatedAccessibilityTree.h"
#include "platform/simulated/SimulatedWindowList.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr Rect window{{100, 100}, {400, 300}};

TEST(isNearEdge, holdsUpToTheMarginInsideAndOutside)
{
    EXPECT_TRUE(isNearEdge({508, 250}, window, 8));
    EXPECT_FALSE(isNearEdge({508.1, 250}, window, 8));
    EXPECT_TRUE(isNearEdge({492, 250}, window, 8));
    EXPECT_FALSE(isNearEdge({491.9, 250}, window, 8));
    EXPECT_TRUE(isNearEdge({92, 250}, window, 8));
    EXPECT_FALSE(isNearEdge({91.9, 250}, window, 8));
    EXPECT_TRUE(isNearEdge({300, 92}, window, 8));
    EXPECT_TRUE(isNearEdge({300, 408}, window, 8));
    EXPECT_FALSE(isNearEdge({300, 250}, window, 8));
    EXPECT_FALSE(isNearEdge({300, 91.9}, window, 8));
    EXPECT_FALSE(isNearEdge({300, 408.1}, window, 8));
}

TEST(isNearEdge, holdsForAMarginOfLessThanAPoint)
{
    EXPECT_TRUE(isNearEdge({100.25, 250}, window, 0.25));
    EXPECT_FALSE(isNearEdge({100.5, 250}, window, 0.25));
}

TEST(isNearEdge, doesNotHoldOnTheLineOfAnEdgeFarAway)
{
    EXPECT_FALSE(isNearEdge({100, 600}, window, 8));
    EXPECT_FALSE(isNearEdge({900, 100}, window, 8));
}

TEST(isNearEdge, neverHoldsForAnEmptyRectangleOrNoMargin)
{
    EXPECT_FALSE(isNearEdge({100, 100}, {{100, 100}, {0, 300}}, 8));
    EXPECT_FALSE(isNearEdge({100, 100}, {{100, 100}, {400, 0}}, 8));
    EXPECT_FALSE(isNearEdge({100, 100}, {{100, 100}, {-4, 300}}, 8));
    EXPECT_FALSE(isNearEdge({100, 100}, window, 0));
    EXPECT_FALSE(isNearEdge({100, 100}, window, -1));
}

class WindowEdgeTest : public testing::Test {
protected:
    bool isOnEdge(Point point) { return isOnWindowEdge(windows, tree, point, unitsPerPoint); }

    double unitsPerPoint = 1;

    SimulatedWindowList windows;
    SimulatedAccessibilityTree tree;
};

TEST_F(WindowEdgeTest, isFoundByTheListAlone)
{
    windows.windows = {{0, 1.0, window}};

    EXPECT_TRUE(isOnEdge({508, 250}));
    EXPECT_FALSE(isOnEdge({508.1, 250}));
    EXPECT_FALSE(isOnEdge({480, 250}));
    EXPECT_FALSE(isOnEdge({300, 250}));
}

TEST_F(WindowEdgeTest, isNowhereWithoutAWindow) { EXPECT_FALSE(isOnEdge({100, 100})); }

TEST_F(WindowEdgeTest, isThatOfTheFrontmostWindowAtThePoint)
{
    windows.windows = {
        {0, 1.0, Rect{{600, 0}, {50, 50}}}, {0, 1.0, Rect{{0, 0}, {1000, 1000}}}, {0, 1.0, window}};

    EXPECT_FALSE(isOnEdge({100, 250}));
}

TEST_F(WindowEdgeTest, passesByWhatIsNotAnOrdinaryWindow)
{
    const Rect cover{{0, 0}, {1000, 1000}};
    windows.windows = {{25, 1.0, cover}, {0, 0.0, cover}, {{}, 1.0, cover}, {0, {}, cover},
        {0, 1.0, {}}, {0, 1.0, Rect{{100, 200}, {0, 100}}}, {0, 0.5, window}};

    EXPECT_TRUE(isOnEdge({100, 250}));
}

TEST_F(WindowEdgeTest, reachesThirtyTwoPointsAroundTheListedBounds)
{
    windows.windows = {{0, 1.0, window}};
    tree.element = std::make_shared<SimulatedElement>();
    tree.element->givenRole = "AXWindow";
    tree.element->givenPosition = {68, 68};
    tree.element->givenSize = {464, 364};

    EXPECT_TRUE(isOnEdge({532, 250}));
    tree.questions.clear();
    EXPECT_FALSE(isOnEdge({532.1, 250}));
    EXPECT_EQ(tree.questions.size(), 0u);
}

TEST_F(WindowEdgeTest, isThatOfTheAccessibilityFrame)
{
    windows.windows = {{0, 1.0, window}};
    tree.element = std::make_shared<SimulatedElement>();
    tree.element->givenWindow = std::make_shared<SimulatedElement>();
    tree.element->givenWindow->givenPosition = {120, 120};
    tree.element->givenWindow->givenSize = {360, 260};

    EXPECT_TRUE(isOnEdge({480, 250}));
    EXPECT_FALSE(isOnEdge({500, 250}));
    EXPECT_EQ(tree.element->messagingTimeout, 0.03);
    EXPECT_EQ(tree.element->givenWindow->messagingTimeout, 0.03);
    EXPECT_EQ(tree.questions.front(), (std::pair<Point, Seconds>{{480, 250}, 0.03}));
}

TEST_F(WindowEdgeTest, isAsBroadOnAScreenThatIsDrawnLarger)
{
    windows.windows = {{0, 1.0, window}};
    unitsPerPoint = 2;
    EXPECT_TRUE(isOnEdge({516, 250}));
    EXPECT_FALSE(isOnEdge({516.1, 250}));

    tree.element = std::make_shared<SimulatedElement>();
    tree.element->givenRole = "AXWindow";
    tree.element->givenPosition = {50, 100};
    tree.element->givenSize = {514, 300};
    EXPECT_TRUE(isOnEdge({564, 250})) << "It is 64 beside the list's window.";
    EXPECT_FALSE(isOnEdge({564.1, 250}));
}

TEST_F(WindowEdgeTest, isThatOfTheElementItselfWhenThatIsAWindow)
{
    windows.windows = {{0, 1.0, window}};
    tree.element = std::make_shared<SimulatedElement>();
    tree.element->givenWindow = std::make_shared<SimulatedElement>();
    tree.element->givenPosition = {120, 120};
    tree.element->givenSize = {360, 260};

    EXPECT_TRUE(isOnEdge({500, 250}));
    tree.element->givenRole = "AXWindow";
    EXPECT_FALSE(isOnEdge({500, 250}));
    EXPECT_TRUE(isOnEdge({480, 250}));
    tree.element->givenSize.reset();
    EXPECT_TRUE(isOnEdge({500, 250}));
}

} // namespace
} // namespace brindlex
