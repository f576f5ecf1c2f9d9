#include "desktop/LearnedSamples.h"
#include "desktop/PlayedHand.h"
#include "desktop/ProgramDesk.h"
#include "support/hardware/Keycodes.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Sources = std::vector<std::string>;

const auto nameOfManager = [](const auto& instance) { return nameOf(instance.param); };

/// What the program does beside a window manager as its package installs it.
class WindowManagers : public testing::TestWithParam<WindowManager> { };

/// Those that leave the keyboard alone.
using SwitchingWindowManagers = WindowManagers;

TEST_P(SwitchingWindowManagers, haveTheLayoutOfTheApplicationThatIsClicked)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .windowManager = GetParam()});
    desk.applyRules({{"Alpha", german}, {"Beta", us}});
    const TypingWindow alpha(desk.windows, "Alpha", {"-geometry", "40x10+50+100"});
    const TypingWindow beta(desk.windows, "Beta", {"-geometry", "40x10+650+400"});
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    const auto click = [&](const TypingWindow& window) {
        const auto area = desk.windows.areaOf(window.window());
        desk.input.click(area.centreX(), area.centreY());
        return eventually([&] { return desk.windows.active() == window.window(); });
    };

    ASSERT_TRUE(click(alpha));
    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    ASSERT_TRUE(click(beta));
    EXPECT_TRUE(desk.usesGroup(usGroup)) << program.report();
    EXPECT_TRUE(desk.keepsGroup(usGroup)); // Nobody chooses a layout in the instant of a click.
    chooseKeyboardGroup(desk.server, russianGroup);
    EXPECT_TRUE(eventually([&] { return samples(desk.files, "Beta") == Sources{russian}; }))
        << program.report();
    ASSERT_TRUE(click(alpha));
    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    EXPECT_TRUE(desk.keepsGroup(germanGroup));
    EXPECT_EQ(samples(desk.files, "Alpha"), Sources());
}

INSTANTIATE_TEST_SUITE_P(Of, SwitchingWindowManagers,
    testing::Values(WindowManager::openbox, WindowManager::xfwm4), nameOfManager);
INSTANTIATE_TEST_SUITE_P(
    Thorough, SwitchingWindowManagers, testing::Values(WindowManager::kwin), nameOfManager);

/// Those that lock the group of their own choice.
using GuardingWindowManagers = WindowManagers;

TEST_P(GuardingWindowManagers, leaveNoOverlayAndNoSampleOfWhatTheyUndo)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .windowManager = GetParam()});
    desk.applyRules({{"Alpha", german}});
    const TypingWindow alpha(desk.windows, "Alpha");
    const TypingWindow gamma(desk.windows, "Gamma");
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(program.logs("The desktop undoes the selection of xkb:de::deu"))
        << program.report();
    EXPECT_TRUE(eventually([&] { return desk.windows.unmanagedOf(program.process()).empty(); }));
    EXPECT_EQ(samples(desk.files, "Alpha"), Sources());
}

INSTANTIATE_TEST_SUITE_P(
    Thorough, GuardingWindowManagers, testing::Values(WindowManager::mutter), nameOfManager);

/// With the mouse.
class MouseWindowManagers : public WindowManagers {
protected:
    MouseWindowManagers()
    {
        auto config = everything();
        config.click.bindings
            = {brindlex::click(MouseButton::button3, {}, MouseAction::Plain::missionControl)};
        desk.start(config);
    }

    MouseDesk desk{{.windowManager = GetParam()}};
    PlayedHand hand{desk};
};

TEST_P(MouseWindowManagers, changeTheDesktopByDrags)
{
    hand.drag(backButton, 0, -60);
    EXPECT_TRUE(desk.showsDesktop(1)) << desk.program->report();
    hand.drag(backButton, 0, 60);
    EXPECT_TRUE(desk.showsDesktop(0)) << desk.program->report();
}

TEST_P(MouseWindowManagers, bringForwardTheWindowThatIsChosenFromTheList)
{
    const PlainWindow first(desk.server, {.wmClass = wmClass("Editor"), .title = "First"});
    ASSERT_TRUE(desk.windows.activate(first.window()));
    const PlainWindow second(desk.server, {.wmClass = wmClass("Editor"), .title = "Second"});
    ASSERT_TRUE(desk.windows.activate(second.window()));

    hand.click(middleButton);
    ASSERT_TRUE(eventually([&] {
        return !desk.windows.unmanagedOf(desk.program->process()).empty();
    })) << desk.program->report();
    desk.settle();
    hand.stroke(keycode::enter);

    EXPECT_TRUE(eventually([&] { return desk.windows.active() == first.window(); }))
        << desk.program->report();
}

INSTANTIATE_TEST_SUITE_P(Of, MouseWindowManagers,
    testing::Values(WindowManager::openbox, WindowManager::xfwm4), nameOfManager);
INSTANTIATE_TEST_SUITE_P(Thorough, MouseWindowManagers,
    testing::Values(WindowManager::kwinWithoutEffects, WindowManager::mutter), nameOfManager);

/// Those with an overview of their own.
using MouseWindowManagersWithOverview = MouseWindowManagers;

TEST_P(MouseWindowManagersWithOverview, showItForMissionControl)
{
    const PlainWindow window(desk.server, {.wmClass = wmClass("Editor"), .title = "Letter"});
    const auto reply = desk.desktop.home() / "effects";
    const auto isShown = [&] {
        std::filesystem::remove(reply);
        run({.command = {"dbus-send", "--session", "--print-reply", "--dest=org.kde.KWin",
                 "/Effects", "org.freedesktop.DBus.Properties.Get", "string:org.kde.kwin.Effects",
                 "string:activeEffects"},
                .output = reply},
            usualDeadline);
        return contentOf(reply).find("overview") != std::string::npos;
    };
    ASSERT_FALSE(isShown()) << contentOf(reply);

    hand.click(middleButton);

    EXPECT_TRUE(eventually(isShown)) << contentOf(reply) << desk.program->report();
    EXPECT_TRUE(desk.windows.unmanagedOf(desk.program->process()).empty());
}

INSTANTIATE_TEST_SUITE_P(
    Thorough, MouseWindowManagersWithOverview, testing::Values(WindowManager::kwin), nameOfManager);

} // namespace
} // namespace brindlex
