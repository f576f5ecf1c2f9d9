#include "platform/linux/panels/QtOverlayPanel.h"

#include "platform/linux/panels/PillHUDView.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/Screenshot.h"
#include "support/windows/ApplicationWindow.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

using Values = std::vector<std::uint32_t>;
using namespace std::chrono_literals;

/// Claims to be a compositor, which is all that a window asks about it.
class ClaimedCompositor {
public:
    explicit ClaimedCompositor(const XConnection& server)
        : server_(server), window_(xcb_generate_id(server.get()))
    {
        xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window_, server.root(), 0, 0, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(
            server.get(), window_, server.atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
        server.sync();
    }
    ~ClaimedCompositor()
    {
        xcb_destroy_window(server_.get(), window_);
        server_.sync();
    }
    ClaimedCompositor(const ClaimedCompositor&) = delete;
    ClaimedCompositor& operator=(const ClaimedCompositor&) = delete;

private:
    const XConnection& server_;
    xcb_window_t window_;
};

class QtOverlayPanelTest : public testing::Test {
protected:
    /// Shows the text and returns the panel's window once it is on the screen.
    xcb_window_t shown(const std::string& text)
    {
        panel.show(text);
        EXPECT_TRUE(loopUntil([&] { return window() != XCB_WINDOW_NONE; }));
        return window();
    }

    xcb_window_t window() const
    {
        const auto own = windows.unmanagedOf(getpid());
        return own.empty() ? xcb_window_t{XCB_WINDOW_NONE} : own.front();
    }

    Values opacity(xcb_window_t panelWindow) const
    {
        return server.values(panelWindow, "_NET_WM_WINDOW_OPACITY");
    }

    bool isOpaque(xcb_window_t panelWindow) const
    {
        const auto value = opacity(panelWindow);
        return value.empty() || value == Values{0xffffffff};
    }

    /// The child of the root window that gets a click at this place.
    xcb_window_t clickedAt(int x, int y) const
    {
        xcb_warp_pointer(server.get(), XCB_NONE, server.root(), 0, 0, 0, 0,
            static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
        const XReply<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
            server.get(), xcb_query_pointer(server.get(), server.root()), nullptr));
        return pointer->child;
    }

    xcb_window_t topmost() const
    {
        const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
            server.get(), xcb_query_tree(server.get(), server.root()), nullptr));
        const auto* children = xcb_query_tree_children(tree.get());
        for (int index = xcb_query_tree_children_length(tree.get()) - 1; index >= 0; --index)
            if (windows.isOnScreen(children[index]))
                return children[index];
        return XCB_WINDOW_NONE;
    }

    XConnection server;
    DesktopWindows windows{server};
    X11Connection connection;
    QtOverlayPanel panel{connection};
};

TEST_F(QtOverlayPanelTest, isInTheMiddleOfTheScreen)
{
    const auto area = windows.areaOf(shown("U.S."));

    EXPECT_NEAR(area.centreX(), server.screen().width_in_pixels / 2, 1);
    EXPECT_NEAR(area.centreY(), server.screen().height_in_pixels / 2, 1);
}

TEST_F(QtOverlayPanelTest, isAsLargeAsItsTextAndPadding)
{
    const auto area = windows.areaOf(shown("U.S."));

    const auto size = PillHUDView(QStringLiteral("U.S."), 1000).fittingSize();
    EXPECT_EQ(area.width, size.width());
    EXPECT_EQ(area.height, size.height());
}

TEST_F(QtOverlayPanelTest, takesTheSizeOfANewText)
{
    const auto before = windows.areaOf(shown("U.S.")).width;
    panel.show("English (Dvorak)");

    EXPECT_TRUE(loopUntil([&] { return windows.areaOf(window()).width > before; }));
    EXPECT_NEAR(windows.areaOf(window()).centreX(), server.screen().width_in_pixels / 2, 1);
}

TEST_F(QtOverlayPanelTest, staysWithinTheScreen)
{
    std::string text;
    for (int word = 0; word < 200; ++word)
        text += "word ";
    const auto area = windows.areaOf(shown(text));

    EXPECT_LE(area.width, server.screen().width_in_pixels * 8 / 10);
    EXPECT_LE(area.height, server.screen().height_in_pixels / 2);
}

TEST_F(QtOverlayPanelTest, letsClicksThrough)
{
    const ApplicationWindow below(server, {.className = "below"});
    below.show();
    ASSERT_TRUE(windows.activate(below.id()));
    const auto screen = server.screen();
    windows.place(below.id(), {0, 0, screen.width_in_pixels, screen.height_in_pixels});
    const auto panelWindow = shown("U.S.");
    const auto area = windows.areaOf(panelWindow);

    const auto clicked = clickedAt(area.centreX(), area.centreY());
    EXPECT_NE(clicked, panelWindow);
    EXPECT_NE(clicked, xcb_window_t{XCB_WINDOW_NONE});
}

TEST_F(QtOverlayPanelTest, takesNoFocus)
{
    const ApplicationWindow below(server, {.className = "below"});
    below.show();
    ASSERT_TRUE(windows.activate(below.id()));
    ASSERT_TRUE(loopUntil([&] { return windows.focused() == below.id(); }));
    shown("U.S.");

    EXPECT_TRUE(loopThroughout(
        200ms, [&] { return windows.active() == below.id() && windows.focused() == below.id(); }));
}

TEST_F(QtOverlayPanelTest, isAboveEverythingEachTimeItIsShown)
{
    const auto panelWindow = shown("U.S.");
    const ApplicationWindow other(server, {.className = "other"});
    other.show();
    ASSERT_TRUE(windows.activate(other.id()));
    panel.show("拼音");

    EXPECT_TRUE(loopUntil([&] { return topmost() == panelWindow; }));
}

TEST_F(QtOverlayPanelTest, isNoWindowForTheWindowManager)
{
    const auto panelWindow = shown("U.S.");

    EXPECT_EQ(std::ranges::count(windows.managed(), panelWindow), 0);
    EXPECT_EQ(server.values(panelWindow, "_NET_WM_WINDOW_TYPE"),
        Values{server.atom("_NET_WM_WINDOW_TYPE_NOTIFICATION")});
}

TEST_F(QtOverlayPanelTest, isOpaqueWithRoundCornersWithoutACompositor)
{
    const auto panelWindow = shown("U.S.");
    const auto area = windows.areaOf(panelWindow);
    const auto corner = Screenshot(server).at(area.x, area.y);

    using Pixel = Screenshot::Pixel;
    const Pixel dark{44, 44, 46};
    EXPECT_TRUE(
        loopUntil([&] { return Screenshot(server).at(area.x + 20, area.centreY()) == dark; }));
    EXPECT_EQ(Screenshot(server).at(area.x, area.y), corner);
    EXPECT_NE(corner, dark);
    EXPECT_TRUE(isOpaque(panelWindow));
    EXPECT_EQ(Screenshot(server).at(area.x - 1, area.centreY()), corner);
}

TEST_F(QtOverlayPanelTest, goesAtOnceWithoutACompositor)
{
    shown("U.S.");
    panel.fadeOut();

    EXPECT_TRUE(loopUntil([&] { return window() == XCB_WINDOW_NONE; }));
}

TEST_F(QtOverlayPanelTest, fadesInAndOutWithACompositor)
{
    const ClaimedCompositor compositor(server);
    const auto panelWindow = shown("U.S.");
    EXPECT_TRUE(loopUntil([&] { return isOpaque(panelWindow); }));
    panel.fadeOut();

    std::vector<std::uint32_t> steps;
    EXPECT_TRUE(loopUntil([&] {
        const auto value = opacity(panelWindow);
        if (!value.empty() && (steps.empty() || steps.back() != value.front()))
            steps.push_back(value.front());
        return window() == XCB_WINDOW_NONE;
    }));
    EXPECT_GE(steps.size(), 2U);
    EXPECT_TRUE(std::ranges::is_sorted(steps, std::greater()));
}

TEST_F(QtOverlayPanelTest, beginsAnewWhenItIsShownWhileItFades)
{
    const ClaimedCompositor compositor(server);
    const auto panelWindow = shown("U.S.");
    EXPECT_TRUE(loopUntil([&] { return isOpaque(panelWindow); }));
    panel.fadeOut();
    ASSERT_TRUE(loopUntil([&] { return !isOpaque(panelWindow); }));
    panel.show("拼音");

    EXPECT_TRUE(loopUntil([&] { return isOpaque(panelWindow); }));
    EXPECT_TRUE(loopThroughout(400ms, [&] { return window() == panelWindow; }));
}

TEST_F(QtOverlayPanelTest, followsACompositorThatComesAndGoes)
{
    const auto panelWindow = shown("U.S.");
    {
        const ClaimedCompositor compositor(server);
        panel.show("with");
        EXPECT_TRUE(loopUntil([&] { return isOpaque(panelWindow); }));
        panel.fadeOut();
        EXPECT_TRUE(loopUntil([&] { return window() == XCB_WINDOW_NONE; }));
    }
    panel.show("without");

    EXPECT_TRUE(loopUntil([&] { return window() == panelWindow; }));
    EXPECT_TRUE(isOpaque(panelWindow));
}

TEST_F(QtOverlayPanelTest, showsNothingWhenItIsWarmedUp)
{
    panel.warmUp("Aa 中文");

    EXPECT_TRUE(loopThroughout(100ms, [&] { return window() == XCB_WINDOW_NONE; }));
    shown("U.S.");
}

} // namespace
} // namespace brindlex
