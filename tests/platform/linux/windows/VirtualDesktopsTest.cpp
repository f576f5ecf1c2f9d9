#include "platform/linux/windows/VirtualDesktops.h"

#include "support/basics/Eventually.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Values = std::vector<std::uint32_t>;

/// A desktop with four virtual ones in a row.
class VirtualDesktopsTest : public testing::Test {
protected:
    testing::AssertionResult shows(std::uint32_t number) { return becomes("CURRENT", number); }
    testing::AssertionResult becomes(const std::string& what, std::uint32_t value)
    {
        const auto property = "_NET_" + what + "_DESKTOP";
        if (eventually([&] { return server.values(server.root(), property) == Values{value}; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure()
            << testing::PrintToString(server.values(server.root(), property));
    }

    VirtualDesktop desktop{{.sessionBus = false}};
    XConnection server;
    X11Connection connection;
};

TEST_F(VirtualDesktopsTest, lieInARowThatEndsOnBothSides)
{
    ASSERT_EQ(server.values(server.root(), "_NET_NUMBER_OF_DESKTOPS"), Values{4});
    const std::vector<std::pair<int, std::uint32_t>> steps{
        {-1, 0}, {1, 1}, {1, 2}, {1, 3}, {1, 3}, {-1, 2}, {-2, 0}, {3, 3}, {4, 3}, {-4, 3}};

    for (const auto& [distance, number] : steps) {
        switchDesktop(connection, distance);
        EXPECT_TRUE(shows(number)) << distance;
    }
}

TEST_F(VirtualDesktopsTest, endAtTheEndsOfTheRowsOfAGrid)
{
    const std::uint32_t twoByTwo[] = {0, 2, 2, 0};
    xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, server.root(),
        server.atom("_NET_DESKTOP_LAYOUT"), XCB_ATOM_CARDINAL, 32, 4, twoByTwo);
    server.sync();

    for (const auto& [distance, number] : {std::pair{1, 1U}, {1, 1U}, {-1, 0U}, {-1, 0U}}) {
        switchDesktop(connection, distance);
        EXPECT_TRUE(shows(number)) << distance;
    }
}

TEST_F(VirtualDesktopsTest, giveWayToTheEmptyDesktopAndComeBack)
{
    const PlainWindow window(server, {});
    const DesktopWindows windows(server);

    toggleShowingDesktop(connection);
    EXPECT_TRUE(becomes("SHOWING", 1));
    EXPECT_TRUE(eventually([&] { return !windows.isOnScreen(window.window()); }));
    toggleShowingDesktop(connection);
    EXPECT_TRUE(becomes("SHOWING", 0));
    EXPECT_TRUE(eventually([&] { return windows.isOnScreen(window.window()); }));
}

TEST_F(VirtualDesktopsTest, stayAsTheyAreOnceTheServerHasGone)
{
    desktop.endDisplayServer();

    switchDesktop(connection, 1);
    toggleShowingDesktop(connection);

    EXPECT_FALSE(connection.isAlive());
}

TEST(VirtualDesktops, areOfNoConcernToAServerWithoutAWindowManager)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    const XConnection server;
    X11Connection connection;

    switchDesktop(connection, 1);
    toggleShowingDesktop(connection);
    server.sync();

    EXPECT_EQ(server.values(server.root(), "_NET_CURRENT_DESKTOP"), Values());
    EXPECT_TRUE(connection.isAlive());
}

} // namespace
} // namespace brindlex
