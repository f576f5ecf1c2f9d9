#include "platform/linux/watchdog/TapWatchdog.h"

#include "support/basics/Eventually.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedHardware.h"
#include "support/processes/ChildProcess.h"
#include "support/processes/ProcessTable.h"
#include "support/windows/EventLogWindow.h"

#include <csignal>
#include <gtest/gtest.h>
#include <memory>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

/// A program that has taken all devices, on a desktop of its own.
class InputUnderWatchInTime : public testing::Test {
protected:
    InputUnderWatchInTime()
    {
        EXPECT_TRUE(eventually([this] { return says("ready\n"); }));
    }

    bool says(const std::string& text) const
    {
        return program_->output().find(text) != std::string::npos;
    }

    /// The user is dragging and holds a key, all through the program.
    void beginDrag()
    {
        keyboard_.press(keycode::control);
        mouse_.press(1);
        mouse_.move(5, 0);
        settle();
        ASSERT_TRUE(eventually([this] { return window_.drags() > 0; }))
            << testing::PrintToString(window_.lines());
        ASSERT_EQ(window_.lines(), (Lines{"key 37 down", "press 1 (control)"}));
    }

    void settle() const
    {
        mouse_.settle();
        secondMouse_.settle();
        keyboard_.settle();
    }

    /// Moves the mouse like a user who wonders; whether what is played arrives by itself within the
    /// second that is promised.
    bool inputComesBack()
    {
        constexpr std::chrono::milliseconds promised{1000};
        return eventually(
            [this] {
                const int before = window_.motions();
                mouse_.move(1, 0);
                mouse_.move(-1, 0);
                mouse_.settle();
                return window_.motions() > before;
            },
            promised);
    }

    /// Whether the program takes the devices again, in its own time, and says so in the log.
    bool isTappedAgain()
    {
        const std::string logged
            = "WARN [mouse] GlobalEventTap: re-enabled after tapDisabledByTimeout\n";
        const bool isLogged = eventually([&] { return says(logged); });
        const bool isTapped = eventually([&] {
            mouse_.click(2);
            mouse_.settle();
            const auto output = program_->output();
            return output.find("25\n26\n", output.find(logged)) != std::string::npos;
        });
        return isLogged && isTapped && eventually([this] { return window_.held() == Lines{}; });
    }

    void endDrag()
    {
        mouse_.release(1);
        keyboard_.release(keycode::control);
        settle();
    }

    bool arrived(const Lines& expected)
    {
        return eventually([&] { return window_.lines() == expected; });
    }

    VirtualDesktop desktop_{{.windowManager = WindowManager::none,
        .sessionBus = false,
        .server = VirtualDesktop::Server::withPlayedHardware}};
    PlayedMouse mouse_{desktop_};
    PlayedMouse secondMouse_{desktop_, "second-mouse"};
    PlayedKeyboard keyboard_{desktop_};
    EventLogWindow window_;
    std::unique_ptr<ChildProcess> program_ = std::make_unique<ChildProcess>(ChildProcess::Start{
        .command = {TapWatchdog::besideThisProgram().replace_filename("brindlex_tap_program")},
        .output = desktop_.outputFolder() / "program"});
};

TEST_F(InputUnderWatchInTime, comesBackFromAProgramThatIsStoppedInADrag)
{
    beginDrag();
    program_->signal(SIGSTOP);

    EXPECT_TRUE(inputComesBack());
    endDrag();
    EXPECT_TRUE(eventually([this] { return window_.held() == Lines{}; }))
        << testing::PrintToString(window_.held());
    window_.forget();
    keyboard_.stroke(keycode::a);
    secondMouse_.click(2);
    settle();
    EXPECT_TRUE(arrived({"key 38 down", "key 38 up", "press 2", "release 2"}))
        << testing::PrintToString(window_.lines());
}

TEST_F(InputUnderWatchInTime, isTappedAgainWhenTheProgramGoesOn)
{
    program_->signal(SIGSTOP);
    mouse_.move(1, 0);
    EXPECT_TRUE(inputComesBack());

    program_->signal(SIGCONT);

    EXPECT_TRUE(isTappedAgain());
}

TEST_F(InputUnderWatchInTime, isTappedAgainWhenAHandlerHasHungForLong)
{
    beginDrag();
    mouse_.press(9);
    EXPECT_TRUE(inputComesBack());
    mouse_.release(9);
    endDrag();

    program_->signal(SIGUSR1);

    EXPECT_TRUE(isTappedAgain());
}

TEST_F(InputUnderWatchInTime, comesBackFromAHandlerThatHangs)
{
    beginDrag();
    mouse_.click(9);

    EXPECT_TRUE(inputComesBack());
    endDrag();
    EXPECT_TRUE(eventually([this] { return window_.held() == Lines{}; }))
        << testing::PrintToString(window_.held());
}

TEST_F(InputUnderWatchInTime, comesBackFromAProgramThatIsKilledInADrag)
{
    beginDrag();
    program_->signal(SIGKILL);

    EXPECT_TRUE(inputComesBack());
    endDrag();
    EXPECT_TRUE(eventually([this] { return window_.held() == Lines{}; }))
        << testing::PrintToString(window_.held());
}

TEST_F(InputUnderWatchInTime, leavesNoWatchdogBehind)
{
    const auto processes = [this] { return processesWithVariable("HOME", desktop_.home()).size(); };
    // The server, the program and its watchdog.
    ASSERT_TRUE(eventually([&] { return processes() == 3; })) << processes();

    program_->signal(SIGKILL);

    EXPECT_TRUE(eventually([&] { return processes() == 1; })) << processes();
}

TEST(TapWatchdog, leavesNoProcessBehindWhenItIsDismissed)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    const auto before = children();
    TapWatchdog watchdog(TapWatchdog::besideThisProgram(), "");
    watchdog.watch(1);
    ASSERT_EQ(children().size(), before.size() + 1);

    watchdog.dismiss();

    EXPECT_TRUE(eventually([&] { return children() == before; }));
}

} // namespace
} // namespace brindlex
