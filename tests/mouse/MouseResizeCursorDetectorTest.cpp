#include "mouse/MouseResizeCursorDetector.h"

#include "platform/simulated/SimulatedAccessibilityTree.h"
#include "platform/simulated/SimulatedCursor.h"
#include "platform/simulated/SimulatedDisplayScale.h"
#include "platform/simulated/SimulatedWindowList.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

CursorImage image(std::uint64_t identity, std::string picture)
{
    return {identity, {8, 8}, {16, 16}, std::move(picture)};
}

class MouseResizeCursorDetectorTest : public testing::Test {
protected:
    SimulatedCursor cursor;
    SimulatedAccessibilityTree tree;
    SimulatedWindowList windows;
    SimulatedDisplayScale scale;
    MouseResizeCursorDetector detector{cursor, tree, windows, scale};
};

TEST_F(MouseResizeCursorDetectorTest, knowsEveryResizeCursorByItsName)
{
    const std::vector<std::string> names{"resizeLeftRight", "resizeUpDown", "resizeLeft",
        "resizeRight", "resizeUp", "resizeDown", "columnResize", "columnResizeLeft",
        "columnResizeRight", "columnResizeLeftRight", "rowResize", "rowResizeUp", "rowResizeDown",
        "rowResizeUpDown"};
    for (const auto& name : names)
        cursor.named[name] = {image(0, name)};
    for (const auto& name : names) {
        cursor.shown = image(0, name);
        const auto decision = detector.decide({1, 2});
        EXPECT_EQ(decision.reason, "cursor");
        EXPECT_EQ(
            decision.cursorSummary.find("currentSystem=currentSystem{matchedName=" + name + " "),
            0u)
            << decision.cursorSummary;
    }
}

TEST_F(MouseResizeCursorDetectorTest, skipsTheAccessibilityTreeForAResizeCursor)
{
    cursor.named["resizeUp"] = {image(40, "up")};
    cursor.own = image(40, "drawn otherwise");

    const auto decision = detector.decide({1, 2});

    EXPECT_TRUE(decision.shouldBypass);
    EXPECT_EQ(decision.reason, "cursor");
    EXPECT_EQ(decision.accessibilitySummary, "skipped");
    EXPECT_EQ(decision.point, (Point{1, 2}));
    EXPECT_FALSE(decision.windowEdge);
    EXPECT_TRUE(tree.questions.empty());
}

TEST_F(MouseResizeCursorDetectorTest, takesTheFirstOfTwoNamesForOneLook)
{
    cursor.named["columnResize"] = {image(0, "column")};
    cursor.named["columnResizeLeftRight"] = {image(0, "column")};
    cursor.shown = image(9, "column");

    EXPECT_NE(
        detector.decide({}).cursorSummary.find("{matchedName=columnResize "), std::string::npos);
}

TEST_F(MouseResizeCursorDetectorTest, knowsACursorInAnyOfItsLooks)
{
    cursor.named["rowResize"] = {image(3, "thin"), image(4, "thick")};
    cursor.shown = image(0, "thick");

    EXPECT_EQ(detector.decide({}).reason, "cursor");
}

TEST_F(MouseResizeCursorDetectorTest, comparesHotSpotAndPicture)
{
    cursor.named["resizeUp"] = {image(0, "up")};
    cursor.shown = CursorImage{0, {8, 9}, {16, 16}, "up"};
    EXPECT_NE(detector.decide({}).reason, "cursor");
    cursor.shown = image(0, "u");
    EXPECT_NE(detector.decide({}).reason, "cursor");
}

TEST_F(MouseResizeCursorDetectorTest, takesACursorOfAnotherProgramsMakingForAResizeCursor)
{
    cursor.shown = image(0, "cross hair");

    const auto decision = detector.decide({1, 2});

    EXPECT_TRUE(decision.shouldBypass);
    EXPECT_EQ(decision.reason, "customCursor");
    EXPECT_EQ(decision.accessibilitySummary, "skipped");
    EXPECT_TRUE(tree.questions.empty());
}

TEST_F(MouseResizeCursorDetectorTest, goesOnToTheTreeWhenTheSystemsCursorIsUnknown)
{
    cursor.shown.reset();
    tree.element = std::make_shared<SimulatedElement>();
    tree.element->givenRole = "AXSplitter";

    const auto decision = detector.decide({1, 2});

    EXPECT_TRUE(decision.shouldBypass);
    EXPECT_EQ(decision.reason, "axResizeControl");
    EXPECT_EQ(decision.accessibilitySummary, "resizeControl=true roles=role=AXSplitter");
    EXPECT_FALSE(decision.windowEdge);
    EXPECT_EQ(decision.cursorSummary.find("currentSystem=currentSystem{matchedName=unknown "
                                          "hotSpot=nil imageSize=nil imageHash=nil}"),
        0u);
}

TEST_F(MouseResizeCursorDetectorTest, standsAsideAtAWindowsEdge)
{
    windows.windows = {{0, 1.0, Rect{{0, 0}, {100, 100}}}};

    const auto decision = detector.decide({104, 50});

    EXPECT_TRUE(decision.shouldBypass);
    EXPECT_EQ(decision.reason, "windowEdge");
    EXPECT_TRUE(decision.windowEdge);
    EXPECT_EQ(decision.accessibilitySummary, "resizeControl=false roles=none");
}

TEST_F(MouseResizeCursorDetectorTest, letsTheGestureGoAheadOtherwise)
{
    windows.windows = {{0, 1.0, Rect{{0, 0}, {100, 100}}}};

    const auto decision = detector.decide({50, 50});

    EXPECT_FALSE(decision.shouldBypass);
    EXPECT_EQ(decision.reason, "none");
    EXPECT_FALSE(decision.windowEdge);
}

TEST_F(MouseResizeCursorDetectorTest, hashesEqualPicturesEqually)
{
    const auto summary = [&] { return detector.decide({}).cursorSummary; };
    cursor.own.reset();
    cursor.shown = image(0, "one");
    const auto first = summary();
    cursor.shown = image(77, "one");
    EXPECT_EQ(summary(), first);
    cursor.shown = image(0, "two");
    EXPECT_NE(summary(), first);
}

} // namespace
} // namespace brindlex
