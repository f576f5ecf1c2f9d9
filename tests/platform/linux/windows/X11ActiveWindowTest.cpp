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

TEST(X11ActiveWindow, notifiesOfTheTitlesOfTheWindowInFrontAlone)
{
    const VirtualDesktop desktop({.sessionBus = false});
    const XConnection server;
    const DesktopWindows pager(server);
    X11Connection connection;
    X11ActiveWindow activeWindow(connection);
    int titles = 0;
    int events = 0;
    const auto observation = activeWindow.observeTitle([&] { ++titles; });
    const auto counting = connection.observeEvents([&](const xcb_generic_event_t& event) {
        events += (event.response_type & 0x7f) == XCB_PROPERTY_NOTIFY ? 1 : 0;
    });
    const ApplicationWindow behind(server, {"a", "A", 1, "", "Behind"});
    behind.show();
    ASSERT_TRUE(loopUntil([&] { return activeWindow.window() == behind.id(); }));
    const ApplicationWindow front(server, {"b", "B", 2, "", "Front"});
    front.show();
    ASSERT_TRUE(pager.activate(front.id()));
    ASSERT_TRUE(loopUntil([&] { return activeWindow.window() == front.id(); }));

    titles = 0;
    front.setText("_NET_WM_NAME", "UTF8_STRING", "Another");
    EXPECT_TRUE(loopUntil([&] { return titles == 1; }));
    events = 0;
    for (int change = 0; change < 100; ++change)
        behind.setText("_NET_WM_NAME", "UTF8_STRING", std::to_string(change));
    front.setText("_NET_WM_NAME", "UTF8_STRING", "Last");
    EXPECT_TRUE(loopUntil([&] { return titles == 2; }));
    EXPECT_LT(events, 50) << "a window behind others wakes the program";
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
