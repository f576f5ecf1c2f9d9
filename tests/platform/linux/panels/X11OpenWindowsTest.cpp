#include "platform/linux/panels/X11OpenWindows.h"

#include "support/basics/Eventually.h"
#include "support/basics/TemporaryFolder.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace brindlex {
namespace {

class X11OpenWindowsTest : public testing::Test {
protected:
    void claim(const PlainWindow& window, const std::string& property, const std::string& value)
    {
        const std::uint32_t atom = server.atom(value);
        xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, window.window(),
            server.atom(property), XCB_ATOM_ATOM, 32, 1, &atom);
        server.sync();
    }

    std::vector<OpenWindow> listed() { return openWindows(connection, applications, recent); }

    XConnection server;
    DesktopWindows windows{server};
    X11Connection connection;
    X11ActiveWindow activeWindow{connection};
    TemporaryFolder data;
    DesktopEntries entries{{data.path()}, {"en"}};
    X11RunningApplications applications{connection, activeWindow, entries};
    RecentWindows recent;
};

TEST_F(X11OpenWindowsTest, namesNoneWhereNoneIsOpen)
{
    EXPECT_EQ(listed(), std::vector<OpenWindow>{});
}

TEST_F(X11OpenWindowsTest, namesTheTopmostFirstUntilAnotherWasUsed)
{
    const PlainWindow one(server, {.wmClass = wmClass("Editor"), .title = "季度报告"});
    const PlainWindow two(server, {.wmClass = wmClass("Mail"), .title = "Inbox"});
    ASSERT_TRUE(windows.activate(two.window()));
    const OpenWindow first{one.window(), "季度报告", "Editor"};
    const OpenWindow second{two.window(), "Inbox", "Mail"};

    EXPECT_TRUE(eventually([&] { return listed() == std::vector{second, first}; }));
    recent.note(one.window());
    EXPECT_EQ(listed(), (std::vector{first, second}));
}

TEST_F(X11OpenWindowsTest, leavesOutWhatWantsToBeInNoTaskBar)
{
    const PlainWindow window(server, {.wmClass = wmClass("Editor"), .title = "Letter"});
    const PlainWindow panel(server, {.wmClass = wmClass("Panel"), .title = "Panel"});
    const PlainWindow hidden(server, {.wmClass = wmClass("Tray"), .title = "Tray"});
    claim(panel, "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK");
    claim(hidden, "_NET_WM_STATE", "_NET_WM_STATE_SKIP_TASKBAR");

    EXPECT_EQ(listed(), (std::vector<OpenWindow>{{window.window(), "Letter", "Editor"}}));
}

TEST_F(X11OpenWindowsTest, namesAWindowThatSaysNothingOfItselfByItsProgram)
{
    const PlainWindow window(server, {});
    const auto program = std::filesystem::read_symlink("/proc/self/exe").filename().string();

    EXPECT_EQ(listed(), (std::vector<OpenWindow>{{window.window(), "", program}}));
}

TEST_F(X11OpenWindowsTest, namesTwoHundred)
{
    std::vector<std::unique_ptr<PlainWindow>> many;
    for (int number = 0; number < 200; ++number)
        many.push_back(std::make_unique<PlainWindow>(
            server, PlainWindow::Claims{.title = std::to_string(number)}));

    EXPECT_EQ(listed().size(), 200U);
}

} // namespace
} // namespace brindlex
