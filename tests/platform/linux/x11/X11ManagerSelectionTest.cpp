#include "platform/linux/x11/X11ManagerSelection.h"

#include "support/loops/LoopUntil.h"
#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace brindlex {
namespace {

/// A program whose window manages something. Its end is that of its connection.
struct Manager {
    Manager()
    {
        xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window, server.root(), 0, 0, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        announce();
    }
    void announce() const { server.manage("_TEST_S0", window); }

    XConnection server;
    const xcb_window_t window = xcb_generate_id(server.get());
};

class X11ManagerSelectionTest : public testing::Test {
protected:
    using Owners = std::vector<xcb_window_t>;

    bool become(const Owners& expected)
    {
        return loopUntil([&] { return owners == expected; });
    }

    VirtualDesktop desktop{{.windowManager = WindowManager::none, .sessionBus = false}};
    X11Connection connection;
    Owners owners;
};

TEST_F(X11ManagerSelectionTest, followsOwnersThatComeAndGo)
{
    std::optional<Manager> manager(std::in_place);
    const auto first = manager->window;
    const X11ManagerSelection selection(
        connection, "_TEST_S", [this](xcb_window_t owner) { owners.push_back(owner); });
    EXPECT_EQ(selection.owner(), first);
    EXPECT_EQ(owners, Owners{}) << "who is there at once is asked for";

    manager->announce();
    EXPECT_TRUE(become({first}));
    manager.reset();
    EXPECT_TRUE(become({first, 0}));
    EXPECT_EQ(selection.owner(), xcb_window_t{XCB_WINDOW_NONE});
    manager.emplace();
    EXPECT_TRUE(become({first, 0, manager->window}));
    const Manager replacing;
    EXPECT_TRUE(become({first, 0, manager->window, replacing.window}));
    EXPECT_EQ(selection.owner(), replacing.window);
}

TEST_F(X11ManagerSelectionTest, hasNoOwnerWithoutAServer)
{
    desktop.endDisplayServer();
    X11Connection none(desktop.display());
    const X11ManagerSelection selection(none, "_TEST_S", [](xcb_window_t) { FAIL(); });
    EXPECT_EQ(selection.owner(), xcb_window_t{XCB_WINDOW_NONE});
}

} // namespace
} // namespace brindlex
