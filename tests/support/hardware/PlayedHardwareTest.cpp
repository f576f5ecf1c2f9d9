#include "support/hardware/PlayedHardware.h"

#include "support/basics/Eventually.h"
#include "support/hardware/Keycodes.h"
#include "support/windows/EventLogWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

class PlayedHardware : public testing::TestWithParam<EventLogWindow::Protocol> {
protected:
    VirtualDesktop desktop_{{.windowManager = WindowManager::none,
        .sessionBus = false,
        .server = VirtualDesktop::Server::withPlayedHardware}};
    PlayedMouse mouse_{desktop_};
    PlayedMouse secondMouse_{desktop_, "second-mouse"};
    PlayedKeyboard keyboard_{desktop_};
    EventLogWindow window_{GetParam()};
};

TEST_P(PlayedHardware, reachesAWindowLikeThatOfAUser)
{
    mouse_.click(9);
    mouse_.settle();
    keyboard_.press(keycode::control);
    keyboard_.stroke(keycode::a);
    keyboard_.release(keycode::control);
    keyboard_.settle();
    mouse_.turnWheel(2);
    mouse_.turnWheel(0, -1);
    mouse_.settle();
    secondMouse_.click(1);
    secondMouse_.settle();

    const Lines expected{"press 9", "release 9", "key 37 down", "key 38 down (control)",
        "key 38 up (control)", "key 37 up (control)", "press 5", "release 5", "press 5",
        "release 5", "press 6", "release 6", "press 1", "release 1"};
    EXPECT_TRUE(eventually([&] { return window_.lines() == expected; }))
        << testing::PrintToString(window_.lines());
}

TEST_P(PlayedHardware, movesThePointer)
{
    const auto before = window_.pointer();

    mouse_.press(1);
    mouse_.move(3, -2);
    mouse_.release(1);
    mouse_.settle();

    const auto after = window_.pointer();
    EXPECT_EQ(after.x, before.x + 3);
    EXPECT_EQ(after.y, before.y - 2);
    EXPECT_TRUE(eventually([&] { return window_.drags() == 1; }));
}

INSTANTIATE_TEST_SUITE_P(Protocols, PlayedHardware,
    testing::Values(EventLogWindow::Protocol::core, EventLogWindow::Protocol::input2));

} // namespace
} // namespace brindlex
