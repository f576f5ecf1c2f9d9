#include "desktop/MouseFixture.h"

#include "support/locks/InputGrab.h"
#include "support/windows/PlainWindow.h"

#include <algorithm>

namespace brindlex {
namespace {

/// A program that locks the screen of people, and how it is started.
struct Locker {
    std::string name{};
    std::map<std::string, std::string> environment{};
    std::vector<std::string> command{};
};

const Locker i3lock{"i3lock", {}, {"i3lock", "--nofork", "--color=202020"}};
const Locker xsecurelock{"xsecurelock",
    {{"XSECURELOCK_SAVER", "saver_blank"}, {"XSECURELOCK_COMPOSITE_OBSCURER", "0"}},
    {"xsecurelock"}};

/// The running program behind a lock: the middle button runs a command, the button for going
/// forward opens the list of windows.
class LockScreen : public Mouse, public testing::WithParamInterface<Locker> {
protected:
    LockScreen()
    {
        auto config = everything();
        config.click.bindings = {click(MouseButton::button3, {},
                                     MouseAction::RunShellCommand{"echo run >> " + trace.string()}),
            click(MouseButton::button5, {}, MouseAction::Plain::missionControl)};
        desk.start(config);
    }

    void lock()
    {
        const auto& locker = GetParam();
        process.emplace(ChildProcess::Start{
            .command = locker.command, .output = output, .environment = locker.environment});
        ASSERT_TRUE(eventually([this] { return isAllInputTaken(desk.server); }))
            << contentOf(output);
        desk.settle();
    }
    void unlock()
    {
        process.reset();
        ASSERT_TRUE(eventually([this] { return !isAllInputTaken(desk.server); }));
    }

    void expectActions(const Lines& expected) const
    {
        Lines actions;
        for (const auto& message : desk.program->messages())
            if (message.starts_with("dispatch action"))
                actions.push_back(message);
        EXPECT_EQ(actions, expected) << desk.program->report();
    }
    bool showsSomething() const
    {
        return !desk.windows.unmanagedOf(desk.program->process()).empty();
    }

    const std::filesystem::path trace = desk.desktop.home() / "trace";
    const std::filesystem::path output = desk.desktop.home() / "locker";
    std::optional<ChildProcess> process;
};

TEST_P(LockScreen, keepsTheProgramFromDoingAndShowingAnything)
{
    const PlainWindow secret(desk.server, {.wmClass = wmClass("Editor"), .title = "Secret"});
    lock();

    desk.mouse.click(middleButton);
    desk.mouse.click(forwardButton);
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    desk.settle();
    EXPECT_FALSE(showsSomething());
    unlock();
    desk.mouse.click(middleButton);

    EXPECT_TRUE(eventually([this] { return contentOf(trace) == "run\n"; })) << contentOf(trace);
    expectActions({"dispatch action: Run Shell Command"});
}

TEST_P(LockScreen, endsAGestureThatBeganBeforeIt)
{
    desk.mouse.press(backButton);
    desk.settle();
    lock();

    desk.mouse.move(60, 0);
    desk.settle();
    desk.mouse.release(backButton);

    EXPECT_TRUE(desk.program->logs("no action while the session is locked: Forward"))
        << desk.program->report();
    expectActions({});
}

INSTANTIATE_TEST_SUITE_P(Of, LockScreen, testing::Values(i3lock, xsecurelock),
    [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace brindlex
