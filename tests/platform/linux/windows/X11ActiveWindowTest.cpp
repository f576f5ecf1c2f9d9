#include "platform/linux/windows/X11ActiveWindow.h"

#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/ApplicationWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(X11ActiveWindow, returnsNumberProcessAndTitleOfTheWindowInFront)
{
    const VirtualDesktop desktop({.sessionBus = false});
    const XConnection server;
    X11Connection connection;
    const X11ActiveWindow activeWindow(connection);
    EXPECT_EQ(activeWindow.current(), std::nullopt);

    ApplicationWindow window(server, {"a", "A", 1, "", "First \u2013 title"});
    window.show();
    ASSERT_TRUE(loopUntil([&] { return activeWindow.window() == window.id(); }));
    EXPECT_EQ(activeWindow.current(),
        (ActiveWindow{WindowIdentity{window.id()}, ProcessIdentity{1}, "First \u2013 title"}));

    window.setText("_NET_WM_NAME", "UTF8_STRING", std::string(100'000, 't'));
    EXPECT_EQ(activeWindow.current(),
        (ActiveWindow{WindowIdentity{window.id()}, ProcessIdentity{1}, std::string(4096, 't')}));

    window.vanish();
    EXPECT_TRUE(loopUntil([&] { return activeWindow.window() == 0; }));
    EXPECT_EQ(activeWindow.current(), std::nullopt);
}

TEST(X11ActiveWindow, startsWithTheWindowThatIsActiveAlready)
{
    const VirtualDesktop desktop({.sessionBus = false});
    const XConnection server;
    const DesktopWindows pager(server);
    const ApplicationWindow window(server, {"a", "A", 1, "", "Title"});
    window.show();
    ASSERT_TRUE(pager.activate(window.id()));
    X11Connection connection;
    const X11ActiveWindow activeWindow(connection);
    EXPECT_EQ(activeWindow.current(),
        (ActiveWindow{WindowIdentity{window.id()}, ProcessIdentity{1}, "Title"}));
}

} // namespace
} // namespace brindlex
