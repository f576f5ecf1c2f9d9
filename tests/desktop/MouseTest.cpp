#include "desktop/MouseFixture.h"

namespace brindlex {
namespace {

TEST_F(Mouse, goesForwardByADragWithTheSideButton)
{
    desk.start(everything());
    EventLogWindow window;

    drag(backButton, 60, 0);
    desk.mouse.release(backButton);

    EXPECT_TRUE(receives(window, forwardClick));
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
    const auto trace = desk.desktop.home() / "trace";
    auto config = everything();
    config.click.bindings = {click(MouseButton::button3, {},
        MouseAction::RunShellCommand{"echo \"$0 done\" >> " + trace.string()})};
    desk.start(config);
    EventLogWindow window;

    desk.mouse.click(middleButton);

    EXPECT_TRUE(eventually([&] { return contentOf(trace).ends_with("done\n"); }))
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

} // namespace
} // namespace brindlex
