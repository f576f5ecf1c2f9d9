#include "clipboard/ClipboardPanelFrame.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr Size panelSize{600, 400};

/// A screen that windows may fill.
Screen screenAt(const Rect& frame) { return {frame, frame}; }

/// Where the panel comes with the pointer there; outside of everything where there is no screen.
Rect frameAt(Point pointer, const std::vector<Screen>& screens, Size size = panelSize)
{
    return clipboardPanelFrame(size, {screens, pointer}).value_or(Rect{{-1e9, -1e9}, {}});
}

TEST(ClipboardPanelFrame, isInTheMiddleAndBelowTheTop)
{
    const auto screens = std::vector{screenAt({{0, 0}, {1600, 1000}})};
    EXPECT_EQ(frameAt({3, 4}, screens), (Rect{{500, 220}, panelSize}));
}

TEST(ClipboardPanelFrame, isMeasuredInWhatTheDesktopLeavesToWindows)
{
    const Screen screen{{{0, 0}, {1600, 1000}}, {{100, 50}, {1400, 900}}};
    EXPECT_EQ(frameAt({3, 4}, {screen}), (Rect{{500, 248}, panelSize}));
}

TEST(ClipboardPanelFrame, isOnTheScreenOfThePointer)
{
    const std::vector screens{screenAt({{0, 0}, {1000, 1000}}),
        screenAt({{1000, -200}, {2000, 1000}}), screenAt({{-800, 1000}, {800, 500}})};
    EXPECT_EQ(frameAt({500, 500}, screens), (Rect{{200, 220}, panelSize}));
    EXPECT_EQ(frameAt({2500, 700}, screens), (Rect{{1700, 20}, panelSize}));
    EXPECT_EQ(frameAt({-1, 1200}, screens), (Rect{{-700, 1100}, panelSize}));
}

TEST(ClipboardPanelFrame, takesAnEdgeForThatOfTheScreenToTheRightOrBelow)
{
    const std::vector screens{screenAt({{0, 0}, {1000, 1000}}), screenAt({{1000, 0}, {1000, 1000}}),
        screenAt({{0, 1000}, {1000, 1000}})};
    EXPECT_EQ(frameAt({0, 0}, screens).origin.x, 200);
    EXPECT_EQ(frameAt({1000, 0}, screens).origin.x, 1200);
    EXPECT_EQ(frameAt({999.5, 999.5}, screens).origin, (Point{200, 220}));
    EXPECT_EQ(frameAt({0, 1000}, screens).origin, (Point{200, 1220}));
}

TEST(ClipboardPanelFrame, isOnTheFirstOfScreensThatShowTheSame)
{
    const std::vector screens{screenAt({{0, 0}, {1000, 1000}}), screenAt({{0, 0}, {2000, 1000}})};
    EXPECT_EQ(frameAt({500, 500}, screens).origin.x, 200);
    EXPECT_EQ(frameAt({1500, 500}, screens).origin.x, 700);
}

TEST(ClipboardPanelFrame, isOnTheMainScreenWhereThePointerIsOnNone)
{
    const std::vector screens{
        screenAt({{1920, 0}, {1000, 1000}}), screenAt({{0, 0}, {1920, 1080}})};
    EXPECT_EQ(frameAt({-50, 5000}, screens), (Rect{{2120, 220}, panelSize}));
    EXPECT_EQ(frameAt({2920, 10}, screens), (Rect{{2120, 220}, panelSize}));
}

TEST(ClipboardPanelFrame, isNowhereWithoutAScreen)
{
    EXPECT_EQ(clipboardPanelFrame(panelSize, {}), std::nullopt);
}

TEST(ClipboardPanelFrame, isNotBelowTheBottom)
{
    const auto screens = std::vector{screenAt({{0, 0}, {1600, 500}})};
    EXPECT_EQ(frameAt({1, 1}, screens), (Rect{{500, 100}, panelSize}));
    const auto barely = std::vector{screenAt({{0, 0}, {1600, 1000}})};
    EXPECT_EQ(frameAt({1, 1}, barely, {600, 780}).origin.y, 220);
    EXPECT_EQ(frameAt({1, 1}, barely, {600, 781}).origin.y, 219);
}

TEST(ClipboardPanelFrame, sticksOutAtTheTopAndBothSidesWhereItIsTooLarge)
{
    const auto screens = std::vector{screenAt({{100, 100}, {500, 300}})};
    EXPECT_EQ(frameAt({101, 101}, screens), (Rect{{50, 0}, panelSize}));
}

TEST(ClipboardPanelFrame, mayBeOfNoSize)
{
    const auto screens = std::vector{screenAt({{0, 0}, {1600, 1000}})};
    EXPECT_EQ(frameAt({3, 4}, screens, {}), (Rect{{800, 220}, {}}));
}

} // namespace
} // namespace brindlex
