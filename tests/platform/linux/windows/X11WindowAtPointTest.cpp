#include "platform/linux/windows/X11WindowAtPoint.h"

#include "support/basics/Eventually.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/ApplicationWindow.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <unistd.h>

namespace brindlex {
namespace {

using Found = std::optional<X11WindowAtPoint>;

class X11WindowAtPointTest : public testing::Test {
protected:
    /// Opens a window here, above all others.
    std::unique_ptr<PlainWindow> open(const ScreenArea& area, std::optional<std::uint32_t> process)
    {
        auto window
            = std::make_unique<PlainWindow>(server, PlainWindow::Claims{.process = process});
        EXPECT_TRUE(windows.activate(window->window()));
        EXPECT_TRUE(eventually([&] {
            windows.place(window->window(), area);
            const auto now = windows.areaOf(window->window());
            return now.width == area.width && now.height == area.height;
        }));
        return window;
    }

    Rect contentsOf(const PlainWindow& window) const
    {
        const auto area = windows.areaOf(window.window());
        return {{double(area.x), double(area.y)}, {double(area.width), double(area.height)}};
    }
    Point middleOf(const PlainWindow& window) const
    {
        const auto area = windows.areaOf(window.window());
        return {double(area.centreX()), double(area.centreY())};
    }

    VirtualDesktop desktop{{.sessionBus = false}};
    XConnection server;
    DesktopWindows windows{server};
    X11Connection connection;
};

TEST_F(X11WindowAtPointTest, isNoneOnTheDesktop)
{
    const auto window = open({100, 100, 200, 100}, 41);

    EXPECT_EQ(windowAt(connection, {900, 700}), Found());
}

TEST_F(X11WindowAtPointTest, isTheTopmostOfThoseAtThePoint)
{
    const auto below = open({100, 100, 400, 300}, 41);
    const auto above = open({300, 200, 400, 300}, 42);
    const Found ofBelow{{41, contentsOf(*below)}};
    const Found ofAbove{{42, contentsOf(*above)}};
    EXPECT_EQ(windowAt(connection, {150, 200}), ofBelow);
    EXPECT_EQ(windowAt(connection, {400, 300}), ofAbove);

    EXPECT_TRUE(windows.activate(below->window()));

    EXPECT_TRUE(eventually([&] { return windowAt(connection, {400, 300}) == ofBelow; }));
}

TEST_F(X11WindowAtPointTest, hasContentsFromTheFirstPixelToTheLast)
{
    const auto window = open({100, 100, 200, 100}, 41);
    const auto contents = contentsOf(*window);
    const Found found{{41, contents}};

    EXPECT_EQ(windowAt(connection, {contents.minX(), contents.minY()}), found);
    EXPECT_EQ(windowAt(connection, {contents.maxX() - 0.5, contents.maxY() - 0.5}), found);
    EXPECT_EQ(windowAt(connection, {contents.minX() + 20, contents.minY() - 5}), Found());
}

TEST_F(X11WindowAtPointTest, isNoneWhereTheWindowSaysNoProcess)
{
    const auto window = open({100, 100, 200, 100}, {});

    EXPECT_EQ(windowAt(connection, middleOf(*window)), Found());
}

TEST_F(X11WindowAtPointTest, isTheOuterOneOfAWindowWithinAWindow)
{
    const auto window = open({100, 100, 200, 100}, 41);
    auto parent = window->window();
    for (int depth = 0; depth < 40; ++depth) {
        const auto child = xcb_generate_id(server.get());
        xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, child, parent, 0, 0, 200, 100, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_map_window(server.get(), child);
        parent = child;
    }
    server.sync();

    EXPECT_EQ(windowAt(connection, middleOf(*window)), (Found{{41, contentsOf(*window)}}));
}

TEST_F(X11WindowAtPointTest, isNoneBesideTheScreen)
{
    const auto window = open({0, 0, 200, 100}, 41);
    constexpr double far = std::numeric_limits<double>::max();

    for (const auto point : {Point{-1, -1}, Point{1280, 800}, Point{100'000, 50}, Point{far, far},
             Point{-far, -far}, Point{-65'536 + 100, 50}})
        EXPECT_EQ(windowAt(connection, point), Found()) << point.x;
}

TEST_F(X11WindowAtPointTest, isOneToWorkInWhateverItSaysOfItself)
{
    const auto window = open({100, 100, 200, 100}, {});
    const auto found = workWindowAt(connection, middleOf(*window));

    ASSERT_TRUE(found);
    EXPECT_EQ(found->processIdentifier, ::getpid());
    EXPECT_EQ(workWindowAt(connection, {900, 700}), std::nullopt);
}

TEST_F(X11WindowAtPointTest, isNoneToWorkInOnTheDesktopAndOnPanels)
{
    for (const auto* type : {"_NET_WM_WINDOW_TYPE_DESKTOP", "_NET_WM_WINDOW_TYPE_DOCK"}) {
        const auto window = open({100, 100, 200, 100}, 41);
        const auto atom = server.atom(type);
        xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, window->window(),
            server.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &atom);
        server.sync();

        EXPECT_EQ(workWindowAt(connection, middleOf(*window)), std::nullopt) << type;
    }
}

TEST_F(X11WindowAtPointTest, isNoneOnceTheServerHasGone)
{
    const auto window = open({100, 100, 200, 100}, 41);
    const auto point = middleOf(*window);
    ASSERT_TRUE(windowAt(connection, point));

    desktop.endDisplayServer();

    EXPECT_EQ(windowAt(connection, point), Found());
}

} // namespace
} // namespace brindlex
