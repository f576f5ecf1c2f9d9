#include "support/screen/Screenshot.h"

#include "support/basics/Eventually.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(Screenshot, hasTheColoursOfTheScreen)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    const XConnection server;
    const Screenshot before(server);
    const std::uint32_t colour = 0x204060;
    xcb_change_window_attributes(server.get(), server.root(), XCB_CW_BACK_PIXEL, &colour);
    xcb_clear_area(server.get(), false, server.root(), 10, 20, 3, 5);
    server.sync();

    const Screenshot after(server);

    EXPECT_EQ(after.at(10, 20), (Screenshot::Pixel{0x20, 0x40, 0x60}));
    EXPECT_EQ(after.at(9, 20), before.at(9, 20));
    EXPECT_EQ(after.differencesFrom(before), 15);
}

TEST(Screenshot, isSavedAsAPicture)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    const XConnection server;
    const auto file = desktop.home() / "screen.png";

    EXPECT_TRUE(Screenshot(server, {0, 0, 40, 30}).save(file));
    EXPECT_TRUE(contentOf(file).starts_with("\x89PNG"));
    EXPECT_FALSE(Screenshot(server).save("/nowhere/screen.png"));
}

} // namespace
} // namespace brindlex
