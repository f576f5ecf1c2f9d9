#include "platform/linux/windows/X11WindowList.h"

#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"
#include "support/windows/ApplicationWindow.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Values = std::vector<std::uint32_t>;
using Windows = std::vector<WindowInfo>;

constexpr Rect contents{{50, 50}, {300, 200}};

/// A screen on which the test says what a window manager would.
class X11WindowListTest : public testing::Test {
protected:
    xcb_window_t open()
    {
        windows_.push_back(
            std::make_unique<ApplicationWindow>(server, ApplicationWindow::Description{}));
        windows_.back()->show();
        return windows_.back()->id();
    }
    ApplicationWindow& last() { return *windows_.back(); }

    void setOfRoot(const std::string& property, const std::string& type, const Values& values)
    {
        xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, server.root(),
            server.atom(property), server.atom(type), 32, static_cast<std::uint32_t>(values.size()),
            values.data());
        server.sync();
    }
    void stack(const Values& windows) { setOfRoot("_NET_CLIENT_LIST_STACKING", "WINDOW", windows); }
    Values atoms(const std::vector<std::string>& names)
    {
        Values values;
        for (const auto& name : names)
            values.push_back(server.atom(name));
        return values;
    }

    VirtualDesktop desktop{{.windowManager = WindowManager::none, .sessionBus = false}};
    XConnection server;
    X11Connection connection;
    X11WindowList list{connection};

private:
    std::vector<std::unique_ptr<ApplicationWindow>> windows_;
};

TEST_F(X11WindowListTest, isEmptyWithoutAWindowManager)
{
    open();

    EXPECT_EQ(list.onScreen(), Windows());
}

TEST_F(X11WindowListTest, isEmptyOnceTheServerHasGone)
{
    stack({open()});
    ASSERT_EQ(list.onScreen().size(), 1U);

    desktop.endDisplayServer();

    EXPECT_EQ(list.onScreen(), Windows());
}

TEST_F(X11WindowListTest, putsEveryKindOfPanelAboveTheWindows)
{
    stack({open()});
    const std::vector<std::pair<std::string, int>> layers{{"NORMAL", 0}, {"DIALOG", 0},
        {"UTILITY", 0}, {"TOOLBAR", 0}, {"DOCK", 1}, {"MENU", 1}, {"POPUP_MENU", 1},
        {"DROPDOWN_MENU", 1}, {"TOOLTIP", 1}, {"NOTIFICATION", 1}, {"SPLASH", 1}};

    for (const auto& [type, layer] : layers) {
        last().setValues("_NET_WM_WINDOW_TYPE", "ATOM", atoms({"_NET_WM_WINDOW_TYPE_" + type}));
        EXPECT_EQ(list.onScreen(), (Windows{{layer, 1.0, contents}})) << type;
    }
    last().setValues("_NET_WM_WINDOW_TYPE", "ATOM", atoms({"_NET_WM_WINDOW_TYPE_DESKTOP"}));
    EXPECT_EQ(list.onScreen(), Windows());
    // The first that is known counts for some, and any of them here.
    last().setValues("_NET_WM_WINDOW_TYPE", "ATOM",
        atoms({"_STRANGE", "_NET_WM_WINDOW_TYPE_NORMAL", "_NET_WM_WINDOW_TYPE_DOCK"}));
    EXPECT_EQ(list.onScreen(), (Windows{{1, 1.0, contents}}));
}

TEST_F(X11WindowListTest, putsAWindowAboveOthersWhereTheUserWantsItThere)
{
    stack({open()});
    const std::vector<std::pair<std::string, int>> layers{
        {"ABOVE", 1}, {"BELOW", 0}, {"FULLSCREEN", 0}, {"STICKY", 0}, {"MAXIMIZED_VERT", 0}};

    for (const auto& [state, layer] : layers) {
        last().setValues("_NET_WM_STATE", "ATOM", atoms({"_NET_WM_STATE_" + state}));
        EXPECT_EQ(list.onScreen(), (Windows{{layer, 1.0, contents}})) << state;
    }
}

TEST_F(X11WindowListTest, readsTheOpacityAsAShareOfThirtyTwoBits)
{
    stack({open()});
    const std::vector<std::pair<std::uint32_t, double>> table{
        {0, 0.0}, {0x7FFFFFFF, 0.49999999988358468}, {0xFFFFFFFF, 1.0}};

    for (const auto& [value, alpha] : table) {
        last().setValues("_NET_WM_WINDOW_OPACITY", "CARDINAL", {value});
        EXPECT_EQ(list.onScreen(), (Windows{{0, alpha, contents}})) << value;
    }
    last().setText("_NET_WM_WINDOW_OPACITY", "STRING", "half");
    EXPECT_EQ(list.onScreen(), (Windows{{0, 1.0, contents}}));
    last().setValues("_NET_WM_WINDOW_OPACITY", "CARDINAL", {});
    EXPECT_EQ(list.onScreen(), (Windows{{0, 1.0, contents}}));
}

TEST_F(X11WindowListTest, leavesOutHiddenWindowsAndThoseNeverShown)
{
    const auto hidden = open();
    last().setValues("_NET_WM_STATE", "ATOM", atoms({"_STRANGE", "_NET_WM_STATE_HIDDEN"}));
    const ApplicationWindow neverShown(server, {});
    stack({hidden, neverShown.id()});

    EXPECT_EQ(list.onScreen(), Windows());
}

TEST_F(X11WindowListTest, leavesOutWindowsOfOtherDesktops)
{
    stack({open()});
    setOfRoot("_NET_CURRENT_DESKTOP", "CARDINAL", {1});
    const Windows shown{{0, 1.0, contents}};
    EXPECT_EQ(list.onScreen(), shown);

    const std::vector<std::pair<std::uint32_t, bool>> desktops{
        {0, false}, {1, true}, {2, false}, {0xFFFFFFFF, true}};
    for (const auto& [number, isShown] : desktops) {
        last().setValues("_NET_WM_DESKTOP", "CARDINAL", {number});
        EXPECT_EQ(list.onScreen(), isShown ? shown : Windows()) << number;
    }

    // A window manager without desktops says nothing of the present one.
    last().setValues("_NET_WM_DESKTOP", "CARDINAL", {0});
    xcb_delete_property(server.get(), server.root(), server.atom("_NET_CURRENT_DESKTOP"));
    server.sync();
    EXPECT_EQ(list.onScreen(), shown);
}

TEST_F(X11WindowListTest, addsTheFrameAndTakesTheShadowAway)
{
    stack({open()});

    last().setValues("_NET_FRAME_EXTENTS", "CARDINAL", {1, 2, 20, 4});
    EXPECT_EQ(list.onScreen(), (Windows{{0, 1.0, Rect{{49, 30}, {303, 224}}}}));
    // The window draws its frame itself, and its shadow around that.
    last().setValues("_GTK_FRAME_EXTENTS", "CARDINAL", {10, 12, 14, 16});
    EXPECT_EQ(list.onScreen(), (Windows{{0, 1.0, Rect{{60, 64}, {278, 170}}}}));
}

TEST_F(X11WindowListTest, takesTheContentsWhereTheFrameIsNonsense)
{
    stack({open()});
    const Windows plain{{0, 1.0, contents}};

    for (const auto property : {"_NET_FRAME_EXTENTS", "_GTK_FRAME_EXTENTS"}) {
        for (const auto& values : {Values{}, Values{9}, Values{9, 9, 9}}) {
            last().setValues(property, "CARDINAL", values);
            EXPECT_EQ(list.onScreen(), plain) << property << values.size();
        }
        last().setText(property, "STRING", "9999999999999999");
        EXPECT_EQ(list.onScreen(), plain) << property;
    }
}

TEST_F(X11WindowListTest, hasNoAreaForAWindowThatIsNothingButShadow)
{
    stack({open()});
    last().setValues("_GTK_FRAME_EXTENTS", "CARDINAL", Values(4, 0xFFFFFFFF));

    const auto windows = list.onScreen();

    ASSERT_EQ(windows.size(), 1U);
    EXPECT_TRUE(windows[0].bounds && windows[0].bounds->isEmpty());
}

TEST_F(X11WindowListTest, passesOverWindowsThatHaveGone)
{
    const auto first = open();
    last().setValues("_NET_WM_WINDOW_OPACITY", "CARDINAL", {0});
    const auto gone = open();
    last().vanish();
    const auto second = open();
    stack({first, gone, second, XCB_WINDOW_NONE, 0xFFFFFFFF});

    EXPECT_EQ(list.onScreen(), (Windows{{0, 1.0, contents}, {0, 0.0, contents}}));
}

TEST_F(X11WindowListTest, readsNothingFromAListOfAnotherForm)
{
    open();
    const std::string text = "window window window";
    xcb_change_property(server.get(), XCB_PROP_MODE_REPLACE, server.root(),
        server.atom("_NET_CLIENT_LIST_STACKING"), server.atom("STRING"), 8,
        static_cast<std::uint32_t>(text.size()), text.data());
    server.sync();

    EXPECT_EQ(list.onScreen(), Windows());
}

} // namespace
} // namespace brindlex
