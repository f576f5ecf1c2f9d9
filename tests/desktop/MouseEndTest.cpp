#include "desktop/MouseFixture.h"

#include <csignal>

namespace brindlex {
namespace {

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
    EXPECT_TRUE(receivesWhatIsOfNoUse(window));
}

INSTANTIATE_TEST_SUITE_P(
    OfTheProgram, MouseAtTheEnd, testing::Values(SIGTERM, SIGINT, SIGKILL, SIGSEGV));

/// Values that no setting could have produced, and what the last line of the log says of them.
struct Impossible {
    const char* name;
    MouseConfig config;
    const char* lastWords;
};

void PrintTo(const Impossible& values, std::ostream* stream) { *stream << values.name; }

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
