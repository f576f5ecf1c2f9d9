#include "desktop/MouseDesk.h"
#include "support/Keycodes.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = MouseDesk::Lines;

const Lines forwardStroke{
    "key 64 down", "key 114 down (alt)", "key 114 up (alt)", "key 64 up (alt)"};

class Mouse : public testing::Test {
protected:
    /// Drags with a button by this much, in steps, and leaves it pressed.
    void drag(int button, double x, double y) const
    {
        desk.mouse.press(button);
        // A motion in the same instant would be the server's before the press is anybody's.
        desk.mouse.settle();
        for (int step = 0; step < 10; ++step)
            desk.mouse.move(x / 10, y / 10);
        desk.settle();
    }

    testing::AssertionResult receives(EventLogWindow& window, const Lines& expected) const
    {
        if (desk.receives(window, expected))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << testing::PrintToString(window.lines()) << "\n"
                                           << desk.program->report();
    }

    std::filesystem::path trace() const { return desk.desktop.home() / "trace"; }

    MouseAction::Any leaveTrace() const
    {
        return MouseAction::RunShellCommand{"echo \"$0 done\" >> " + trace().string()};
    }

    MouseDesk desk;
};

TEST_F(Mouse, goesForwardByADragWithTheSideButton)
{
    desk.start(everything());
    EventLogWindow window;

    drag(backButton, 60, 0);
    desk.mouse.release(backButton);

    EXPECT_TRUE(receives(window, forwardStroke));
    EXPECT_TRUE(desk.program->logs("MouseGesture: dispatched on lock Side Back (4) Right"));
}

TEST_F(Mouse, givesBackTheClickThatWasNoGesture)
{
    desk.start(everything());
    EventLogWindow window;
    const auto before = window.pointer();

    drag(backButton, 4, 3);
    desk.mouse.release(backButton);

    EXPECT_TRUE(receives(window, {"press 8", "release 8"}));
    EXPECT_EQ(window.pointer(), before);
}

TEST_F(Mouse, switchesDesktopsByDrags)
{
    desk.start(everything());

    drag(backButton, 0, -60);
    desk.mouse.release(backButton);
    EXPECT_TRUE(desk.program->logs("SpaceSwitcher: finished")) << desk.program->report();
    EXPECT_TRUE(desk.showsDesktop(1)) << desk.program->report();

    drag(backButton, 0, 60);
    desk.mouse.release(backButton);
    EXPECT_TRUE(desk.showsDesktop(0)) << desk.program->report();
}

TEST_F(Mouse, runsACommandByAClick)
{
    auto config = everything();
    config.click.bindings = {click(MouseButton::button3, {}, leaveTrace())};
    desk.start(config);
    EventLogWindow window;

    desk.mouse.click(middleButton);

    EXPECT_TRUE(eventually([&] { return contentOf(trace()).ends_with("done\n"); }))
        << desk.program->report();
    desk.mouse.click(leftButton);
    EXPECT_TRUE(receives(window, {"press 1", "release 1"}));
}

TEST_F(Mouse, sendsAKeystrokeWithItsOwnModifiersAlone)
{
    constexpr int macA = 0;
    auto config = everything();
    config.click.bindings = {click(MouseButton::button3, ModifierSet::shift,
        MouseAction::SendKeystroke{macA, ModifierSet::control})};
    desk.start(config);
    EventLogWindow window;

    desk.keyboard.press(keycode::shift);
    desk.keyboard.settle();
    desk.mouse.click(middleButton);
    desk.settle();
    desk.keyboard.release(keycode::shift);

    const auto strokes = [&] {
        Lines lines;
        for (const auto& line : window.lines())
            if (line.starts_with("key 38"))
                lines.push_back(line);
        return lines;
    };
    const Lines expected{"key 38 down (control)", "key 38 up (control)"};
    EXPECT_TRUE(eventually([&] { return strokes() == expected; }))
        << testing::PrintToString(window.lines()) << desk.program->report();
    EXPECT_TRUE(eventually([&] { return window.held() == Lines{}; }));
}

TEST_F(Mouse, scrollsSmoothlyAndLosesNothing)
{
    desk.start(everything());
    EventLogWindow window;

    for (int notch = 0; notch < 5; ++notch)
        desk.mouse.turnWheel(1);

    Lines expected;
    for (int notch = 0; notch < 5; ++notch)
        expected.insert(expected.end(), {"press 5", "release 5"});
    EXPECT_TRUE(receives(window, expected));
}

TEST_F(Mouse, turnsTheWheelAround)
{
    MouseConfig config;
    config.scroll.invertVertical = true;
    desk.start(config);
    EventLogWindow window;

    desk.mouse.turnWheel(2);
    desk.mouse.turnWheel(-1);

    EXPECT_TRUE(
        receives(window, {"press 4", "release 4", "press 4", "release 4", "press 5", "release 5"}));
}

TEST_F(Mouse, movesThePointerAsFarAsTheHandWhateverIsHeld)
{
    EventLogWindow window;
    const auto dragged = [&] {
        const auto before = window.pointer();
        desk.keyboard.press(keycode::alt);
        desk.keyboard.settle();
        drag(leftButton, 60, 40);
        desk.mouse.release(leftButton);
        desk.settle();
        desk.keyboard.release(keycode::alt);
        const auto after = window.pointer();
        window.movePointer(before);
        return std::pair{after.x - before.x, after.y - before.y};
    };
    constexpr std::pair asFar{60, 40};

    EXPECT_EQ(dragged(), asFar) << "without the program";
    auto config = everything();
    config.scroll.smoothEnabled = false;
    desk.start(config);
    EXPECT_EQ(dragged(), asFar) << "with bindings";
    EXPECT_EQ(dragged(), asFar) << "with bindings, again";
    config.scroll.smoothEnabled = true;
    desk.set(config);
    ASSERT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); }));
    EXPECT_EQ(dragged(), asFar) << "with the wheel";
}

TEST_F(Mouse, leavesAllDevicesAloneWithoutBindings)
{
    desk.start({});
    EventLogWindow window;

    desk.mouse.click(backButton);
    desk.mouse.turnWheel(1);
    desk.keyboard.stroke(keycode::a);
    desk.keyboard.settle();

    EXPECT_TRUE(receives(
        window, {"press 8", "release 8", "press 5", "release 5", "key 38 down", "key 38 up"}));
    EXPECT_FALSE(desk.isAnyDeviceTaken());
}

TEST_F(Mouse, followsSettingsThatAnotherProcessWrites)
{
    desk.start({});
    EventLogWindow window;

    desk.set(everything());
    EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); })) << desk.program->report();
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, forwardStroke));

    desk.set({});
    EXPECT_TRUE(desk.givesDevicesBack()) << desk.program->report();
    window.forget();
    desk.mouse.click(backButton);
    EXPECT_TRUE(receives(window, {"press 8", "release 8"}));
}

TEST_F(Mouse, losesAndRegainsThePermissionOfTheUser)
{
    desk.start(everything());
    EventLogWindow window;

    desk.setPreference("allowsInputMonitoring", false);
    EXPECT_TRUE(
        desk.program->logs("GlobalEventTap: tearing down, permission lost (ax-distributed)"))
        << desk.program->report();
    EXPECT_TRUE(desk.givesDevicesBack());
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, {"press 8", "release 8"}));

    desk.setPreference("allowsInputMonitoring", true);
    EXPECT_TRUE(
        desk.program->logs("GlobalEventTap: rebuilding, permission regained (ax-distributed)"))
        << desk.program->report();
    EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); }));
    window.forget();
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, forwardStroke));
}

TEST_F(Mouse, startsOnceTheUserAllowsIt)
{
    desk.setPreference("allowsAccessibility", false);
    desk.start(everything());
    for (const auto name : {"MouseClick", "MouseGesture", "MouseScroll"})
        EXPECT_TRUE(desk.program->logs(std::string(name)
            + ": missing Accessibility or Input Monitoring permission; not starting"));
    EXPECT_FALSE(desk.isAnyDeviceTaken());

    desk.setPreference("allowsAccessibility", nullptr);

    EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); })) << desk.program->report();
    EventLogWindow window;
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, forwardStroke));
}

TEST_F(Mouse, worksByDefaultsWhereItsSettingsAreDamaged)
{
    desk.setPreference("mouseConfig", R"({"click":{"enabled":true,"bindings":[{"id":7}]}})");
    desk.program.emplace(desk.desktop);
    ASSERT_TRUE(desk.program->launches()) << desk.program->report();
    EventLogWindow window;

    EXPECT_TRUE(
        desk.program->logs("The preference \"mouseConfig\" cannot be read; the default applies"));
    desk.settle();
    desk.mouse.click(backButton);
    desk.mouse.turnWheel(1);
    EXPECT_TRUE(receives(window, {"press 8", "release 8", "press 5", "release 5"}));
    EXPECT_EQ(desk.program->quit(), (ProcessEnd{0, {}})) << desk.program->report();
}

/// The ways in which the program ends in the middle of what a user does.
class MouseAtTheEnd : public Mouse, public testing::WithParamInterface<int> { };

TEST_P(MouseAtTheEnd, leavesNothingTakenOrStuck)
{
    desk.start(everything());
    EventLogWindow window;
    desk.keyboard.press(keycode::super);
    desk.keyboard.press(keycode::a);
    desk.keyboard.settle();
    desk.mouse.press(leftButton);
    drag(backButton, 10, 0);

    desk.program->child().signal(GetParam());
    ASSERT_TRUE(desk.program->child().waitForEnd(usualDeadline));

    EXPECT_TRUE(desk.givesDevicesBack());
    desk.mouse.release(backButton);
    desk.mouse.release(leftButton);
    desk.keyboard.release(keycode::a);
    desk.keyboard.release(keycode::super);
    desk.settle();
    EXPECT_TRUE(eventually([&] { return window.held() == Lines{}; }))
        << testing::PrintToString(window.held());
    window.forget();
    desk.mouse.click(backButton);
    desk.mouse.turnWheel(1);
    desk.keyboard.stroke(keycode::a);
    desk.keyboard.settle();
    EXPECT_TRUE(receives(
        window, {"press 8", "release 8", "press 5", "release 5", "key 38 down", "key 38 up"}));
}

INSTANTIATE_TEST_SUITE_P(
    OfTheProgram, MouseAtTheEnd, testing::Values(SIGTERM, SIGINT, SIGKILL, SIGSEGV));

/// Values that no setting could have produced, and what the last line of the log says of them.
struct Impossible {
    const char* name;
    MouseConfig config;
    const char* lastWords;
};

MouseConfig impossibleKey()
{
    auto config = everything();
    config.click.bindings
        = {click(MouseButton::button3, {}, MouseAction::SendKeystroke{70'000, {}})};
    return config;
}

MouseConfig impossibleSpeed()
{
    auto config = everything();
    config.scroll.smoothEnabled = false;
    config.scroll.speedMultiplier = 1e308;
    return config;
}

class MouseWithoutSense : public Mouse, public testing::WithParamInterface<Impossible> { };

TEST_P(MouseWithoutSense, endsTheProgramWithItsReasonAndFreesTheInput)
{
    desk.start(GetParam().config);
    EventLogWindow window;
    desk.keyboard.press(keycode::a);
    desk.keyboard.settle();

    desk.mouse.press(middleButton);
    desk.mouse.turnWheel(1);

    ASSERT_TRUE(desk.program->child().waitForEnd(usualDeadline)) << desk.program->report();
    EXPECT_TRUE(desk.program->messages().back().starts_with(GetParam().lastWords))
        << desk.program->report();
    EXPECT_TRUE(desk.givesDevicesBack());
    desk.mouse.release(middleButton);
    desk.keyboard.release(keycode::a);
    EXPECT_TRUE(eventually([&] { return window.held() == Lines{}; }))
        << testing::PrintToString(window.held());
}

INSTANTIATE_TEST_SUITE_P(Values, MouseWithoutSense,
    testing::Values(Impossible{"keyCode", impossibleKey(), "A keystroke has the key code 70000"},
        Impossible{"speed", impossibleSpeed(), "A scroll event of "}),
    [](const auto& tested) { return std::string(tested.param.name); });

} // namespace
} // namespace brindlex
