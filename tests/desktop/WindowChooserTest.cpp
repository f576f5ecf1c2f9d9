#include "desktop/WindowChooserFixture.h"
#include "support/screen/Screenshot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>

namespace brindlex {
namespace {

TEST_F(WindowChooser, liesInTheMiddleWithARowForEachWindow)
{
    open("Letter");
    open("季度报告.odt - 文档");
    ASSERT_TRUE(opens());

    const auto area = desk.windows.areaOf(*list());

    const auto& screen = desk.server.screen();
    EXPECT_LE(std::abs(area.centreX() - screen.width_in_pixels / 2), 1);
    EXPECT_LE(std::abs(area.centreY() - screen.height_in_pixels / 2), 1);
    EXPECT_EQ(area.height, 2 * rowHeight + 2 * padding);
}

TEST_F(WindowChooser, beginsWithTheWindowBefore)
{
    const auto& first = open("First");
    open("Second");
    ASSERT_TRUE(opens());

    hand.stroke(keycode::enter);

    EXPECT_TRUE(isGone());
    EXPECT_TRUE(isActive(first));
}

TEST_F(WindowChooser, followsTheKeysThroughTheWindowsInTheOrderOfTheirUse)
{
    const auto& first = open("First");
    const auto& second = open("Second");
    const auto& third = open("Third");
    ASSERT_TRUE(desk.windows.activate(first.window()));
    // first, third, second: it begins with the third.
    ASSERT_TRUE(opens());
    hand.stroke(keycode::down);
    hand.stroke(keycode::enter);
    EXPECT_TRUE(isActive(second));

    // second, first, third
    ASSERT_TRUE(opens());
    hand.stroke(keycode::tab);
    hand.stroke(keycode::enter);
    EXPECT_TRUE(isActive(third));

    // third, second, first
    ASSERT_TRUE(opens());
    hand.stroke(keycode::up);
    hand.stroke(keycode::up);
    hand.stroke(keycode::enter);
    EXPECT_TRUE(isActive(first));
}

TEST_F(WindowChooser, changesToTheDesktopOfTheWindow)
{
    const auto& here = open("Here");
    desk.server.ask(desk.server.root(), "_NET_CURRENT_DESKTOP", {1, XCB_CURRENT_TIME});
    ASSERT_TRUE(desk.showsDesktop(1));
    open("There");
    ASSERT_TRUE(opens());

    hand.stroke(keycode::enter);

    EXPECT_TRUE(desk.showsDesktop(0));
    EXPECT_TRUE(isActive(here));
}

TEST_F(WindowChooser, bringsBackAMinimisedWindow)
{
    const auto& hidden = open("Hidden");
    open("Shown");
    constexpr std::uint32_t iconic = 3;
    desk.server.ask(hidden.window(), "WM_CHANGE_STATE", {iconic});
    ASSERT_TRUE(eventually([&] { return !desk.windows.isOnScreen(hidden.window()); }));
    ASSERT_TRUE(opens());

    hand.stroke(keycode::enter);

    EXPECT_TRUE(isActive(hidden));
    EXPECT_TRUE(eventually([&] { return desk.windows.isOnScreen(hidden.window()); }));
}

TEST_F(WindowChooser, takesTheRowThatIsClicked)
{
    const auto& first = open("First");
    open("Second");
    open("Third");
    ASSERT_TRUE(opens());
    const auto area = desk.windows.areaOf(*list());

    hand.pointAt(area.centreX(), area.y + padding + 2 * rowHeight + rowHeight / 2);
    desk.mouse.click(leftButton);

    EXPECT_TRUE(isGone());
    EXPECT_TRUE(isActive(first));
}

TEST_F(WindowChooser, choosesNothingByAPointerThatRestsWhereItComes)
{
    const auto& first = open("First");
    open("Second");
    const auto& screen = desk.server.screen();
    // On the row of the present window, and touched as a hand does that lets a button go.
    hand.pointAt(screen.width_in_pixels / 2, screen.height_in_pixels / 2 - rowHeight / 2);
    ASSERT_TRUE(opens());
    desk.mouse.move(2, 1);
    desk.settle();

    hand.stroke(keycode::enter);

    EXPECT_TRUE(isActive(first));
}

TEST_F(WindowChooser, closesByEscapeByAClickElsewhereAndByTheNextTime)
{
    open("First");
    const auto& second = open("Second");

    ASSERT_TRUE(opens());
    hand.stroke(keycode::escape);
    EXPECT_TRUE(isGone());

    ASSERT_TRUE(opens());
    hand.pointAt(1200, 700);
    desk.mouse.click(leftButton);
    EXPECT_TRUE(isGone());

    ASSERT_TRUE(opens());
    desk.mouse.click(middleButton);
    EXPECT_TRUE(isGone());
    EXPECT_TRUE(isActive(second));
}

TEST_F(WindowChooser, keepsToItselfWhatIsTypedAndClickedIntoIt)
{
    EventLogWindow window("Log", {100, 100, 300, 200});
    ASSERT_TRUE(opens());
    window.forget();
    hand.stroke(keycode::a);
    hand.stroke(keycode::escape);
    ASSERT_TRUE(isGone());
    ASSERT_TRUE(opens());
    hand.pointAt(110, 130);
    desk.mouse.click(leftButton);
    ASSERT_TRUE(isGone());
    hand.stroke(keycode::a);

    const auto input = [&] {
        MouseDesk::Lines lines;
        for (const auto& line : window.lines())
            if (line.starts_with("key") || line.starts_with("press") || line.starts_with("release"))
                lines.push_back(line);
        return lines;
    };
    const MouseDesk::Lines expected{"key 38 down", "key 38 up"};
    EXPECT_TRUE(eventually([&] { return input() == expected; })) << testing::PrintToString(input());
    EXPECT_EQ(window.held(), MouseDesk::Lines{});
}

TEST_F(WindowChooser, isNotShownWithoutWindows)
{
    desk.mouse.click(middleButton);

    EXPECT_TRUE(desk.program->logs("Mission Control: no window is open")) << desk.program->report();
    EXPECT_FALSE(list());
}

TEST_F(WindowChooser, scrollsThroughManyWindows)
{
    const auto& first = open("First");
    desk.settle();
    for (int number = 1; number < 40; ++number)
        open("Window " + std::to_string(number));
    ASSERT_TRUE(desk.windows.activate(first.window()));
    desk.settle();
    ASSERT_TRUE(desk.windows.activate(opened[7]->window()));
    desk.settle();
    ASSERT_TRUE(opens());
    EXPECT_LT(desk.windows.areaOf(*list()).height, desk.server.screen().height_in_pixels);

    hand.stroke(keycode::end);
    hand.stroke(keycode::down);
    hand.stroke(keycode::down);
    hand.stroke(keycode::enter);

    EXPECT_TRUE(isActive(first));
}

TEST_F(WindowChooser, isReadOverABrightWindow)
{
    open("Letter");
    open("Invoice");
    ASSERT_TRUE(opens());
    const Screenshot picture(desk.server, desk.windows.areaOf(*list()));

    // The ground of the first row is dark, that of the chosen one blue.
    EXPECT_EQ(picture.at(picture.width() / 2, padding + 6), (Screenshot::Pixel{44, 44, 46}));
    EXPECT_EQ(picture.at(picture.width() / 2, padding + rowHeight + 6),
        (Screenshot::Pixel{10, 100, 220}));
}

using WindowChooserInTime = WindowChooser;

TEST_F(WindowChooserInTime, givesTheKeysBackWhenTheProgramIsStopped)
{
    open("Letter");
    desk.settle(); // Else the letter may get the keys after the window has taken them.
    EventLogWindow window;
    ASSERT_TRUE(opens());
    desk.program->child().signal(SIGSTOP);
    const auto getsKeys = [&] {
        desk.keyboard.stroke(keycode::a);
        desk.keyboard.settle();
        return std::ranges::any_of(
            window.lines(), [](const std::string& line) { return line.starts_with("key 38"); });
    };

    EXPECT_TRUE(eventually(getsKeys, std::chrono::seconds(1)));
    EXPECT_TRUE(eventually([&] { return getsKeys() && !desk.isAnyDeviceTaken(); }));
    EXPECT_TRUE(eventually([&] { return window.held() == MouseDesk::Lines{}; }));

    desk.program->child().signal(SIGCONT);
    EXPECT_TRUE(desk.program->logs("Mission Control: the list of windows was closed, as the "
                                   "program did not reply"))
        << desk.program->report();
    EXPECT_TRUE(isGone());
    EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); })) << desk.program->report();
    EXPECT_TRUE(opens());
    hand.stroke(keycode::escape);
    EXPECT_TRUE(isGone());
}

} // namespace
} // namespace brindlex
