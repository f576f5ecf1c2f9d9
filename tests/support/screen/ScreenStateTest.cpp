#include "support/screen/ScreenState.h"

#include "support/basics/StateReport.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ScreenState, namesTheWindowInFrontAndThePointer)
{
    const VirtualDesktop desktop;
    const XConnection server;
    const DesktopWindows windows(server);
    const PlainWindow window(server, {.wmClass = wmClass("Reader"), .title = "A book"});
    ASSERT_TRUE(windows.activate(window.window()));

    const auto state = screenState();

    EXPECT_NE(state.find("in front: 0x"), std::string::npos) << state;
    EXPECT_NE(state.find(" Reader \"A book\""), std::string::npos) << state;
    EXPECT_NE(state.find("pointer: 640,400"), std::string::npos) << state;
    EXPECT_EQ(presentState(), state) << "A desktop reports its state by itself.";
}

TEST(ScreenState, survivesThatThereIsNoScreen)
{
    VirtualDesktop desktop;
    desktop.endDisplayServer();
    EXPECT_EQ(screenState(), "--- no screen\n");
}

} // namespace
} // namespace brindlex
