#include "platform/WindowList.h"

#include "platform/linux/windows/X11WindowList.h"
#include "platform/simulated/SimulatedWindowList.h"
#include "support/basics/Eventually.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/ApplicationWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>

namespace brindlex {
namespace {

enum class Kind { ordinary, panel, wallpaper };

/// Windows on a simulated screen.
class SimulatedScreen {
public:
    WindowList& list() { return list_; }

    void open(const std::string& name, const ScreenArea& area, Kind kind = Kind::ordinary)
    {
        const Rect bounds{
            {double(area.x), double(area.y)}, {double(area.width), double(area.height)}};
        windows_[name] = {kind == Kind::panel ? 1 : 0, 1.0, bounds};
        if (kind != Kind::wallpaper)
            raise(name);
    }
    void raise(const std::string& name)
    {
        std::erase(frontToBack_, name);
        frontToBack_.insert(frontToBack_.begin(), name);
        refresh();
    }
    void minimize(const std::string& name)
    {
        std::erase(frontToBack_, name);
        refresh();
    }
    void close(const std::string& name) { minimize(name); }
    void setOpacity(const std::string& name, double opacity)
    {
        windows_[name].alpha = opacity;
        refresh();
    }
    Rect frameOf(const std::string& name) { return *windows_[name].bounds; }

private:
    void refresh()
    {
        list_.windows.clear();
        for (const auto& name : frontToBack_)
            list_.windows.push_back(windows_[name]);
    }

    SimulatedWindowList list_;
    std::map<std::string, WindowInfo> windows_;
    std::vector<std::string> frontToBack_;
};

/// Windows on a real desktop with a window manager.
class X11Screen {
public:
    WindowList& list() { return list_; }

    void open(const std::string& name, const ScreenArea& area, Kind kind = Kind::ordinary)
    {
        auto& window = windows_[name];
        window = std::make_unique<ApplicationWindow>(
            server_, ApplicationWindow::Description{.className = name});
        if (kind != Kind::ordinary)
            window->setValues("_NET_WM_WINDOW_TYPE", "ATOM",
                {server_.atom(kind == Kind::panel ? "_NET_WM_WINDOW_TYPE_DOCK"
                                                  : "_NET_WM_WINDOW_TYPE_DESKTOP")});
        window->show();
        EXPECT_TRUE(eventually([&] {
            const auto managed = pager_.managed();
            return std::ranges::find(managed, window->id()) != managed.end();
        }));
        if (kind != Kind::ordinary)
            return;
        EXPECT_TRUE(pager_.activate(window->id()));
        EXPECT_TRUE(eventually([&] {
            pager_.place(window->id(), area);
            const auto now = pager_.areaOf(window->id());
            return now.width == area.width && now.height == area.height;
        }));
    }
    void raise(const std::string& name) { EXPECT_TRUE(pager_.activate(windows_[name]->id())); }
    void minimize(const std::string& name)
    {
        constexpr std::uint32_t iconic = 3;
        server_.ask(windows_[name]->id(), "WM_CHANGE_STATE", {iconic});
    }
    void close(const std::string& name) { windows_.erase(name); }
    void setOpacity(const std::string& name, double opacity)
    {
        windows_[name]->setValues("_NET_WM_WINDOW_OPACITY", "CARDINAL",
            {static_cast<std::uint32_t>(opacity * 0xFFFFFFFF)});
    }

    /// The window that the window manager has put around it.
    Rect frameOf(const std::string& name)
    {
        auto frame = windows_[name]->id();
        for (auto parent = parentOf(frame); parent != server_.root(); parent = parentOf(frame))
            frame = parent;
        const auto area = pager_.areaOf(frame);
        return {{double(area.x), double(area.y)}, {double(area.width), double(area.height)}};
    }

private:
    xcb_window_t parentOf(xcb_window_t window)
    {
        const XReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(server_.get(), xcb_query_tree(server_.get(), window), nullptr));
        return tree ? tree->parent : server_.root();
    }

    VirtualDesktop desktop_{{.sessionBus = false}};
    XConnection server_;
    DesktopWindows pager_{server_};
    std::map<std::string, std::unique_ptr<ApplicationWindow>> windows_;
    X11Connection connection_;
    X11WindowList list_{connection_};
};

template <typename Screen>
class WindowListContract : public testing::Test {
protected:
    /// Waits until the list has these ordinary windows, told apart by their places.
    testing::AssertionResult lists(const std::vector<std::string>& names)
    {
        const auto isListed = [&] {
            std::vector<WindowInfo> expected;
            for (const auto& name : names)
                expected.push_back({0, 1.0, screen.frameOf(name)});
            return screen.list().onScreen() == expected;
        };
        if (eventually(isListed))
            return testing::AssertionSuccess();
        auto failure = testing::AssertionFailure();
        for (const auto& window : screen.list().onScreen())
            failure << window.layer.value_or(-1) << " " << window.alpha.value_or(-1) << " "
                    << window.bounds.value_or(Rect{}).minX() << ","
                    << window.bounds.value_or(Rect{}).minY() << "\n";
        return failure;
    }

    Screen screen;
    const ScreenArea left{100, 100, 300, 200};
    const ScreenArea right{500, 300, 400, 250};
    const ScreenArea overBoth{150, 120, 600, 330};
};

using Screens = testing::Types<SimulatedScreen, X11Screen>;
class ScreenNames {
public:
    template <typename Screen>
    static std::string GetName(int)
    {
        return std::is_same_v<Screen, X11Screen> ? "X11" : "Simulated";
    }
};
TYPED_TEST_SUITE(WindowListContract, Screens, ScreenNames);

TYPED_TEST(WindowListContract, isEmptyOnAnEmptyScreen)
{
    EXPECT_EQ(this->screen.list().onScreen(), std::vector<WindowInfo>());
}

TYPED_TEST(WindowListContract, listsWindowsFromFrontToBackWithTheirFrames)
{
    this->screen.open("left", this->left);
    this->screen.open("right", this->right);
    this->screen.open("over", this->overBoth);
    EXPECT_TRUE(this->lists({"over", "right", "left"}));

    this->screen.raise("left");
    EXPECT_TRUE(this->lists({"left", "over", "right"}));
    EXPECT_GE(this->screen.frameOf("left").size.width, this->left.width);
    EXPECT_GE(this->screen.frameOf("left").size.height, this->left.height);
}

TYPED_TEST(WindowListContract, leavesOutWhatIsMinimizedAndWhatIsGone)
{
    this->screen.open("left", this->left);
    this->screen.open("right", this->right);
    this->screen.open("over", this->overBoth);

    this->screen.minimize("over");
    EXPECT_TRUE(this->lists({"right", "left"}));
    this->screen.close("right");
    EXPECT_TRUE(this->lists({"left"}));
    this->screen.raise("over");
    EXPECT_TRUE(this->lists({"over", "left"}));
}

TYPED_TEST(WindowListContract, leavesOutTheDesktopAndPutsPanelsAboveWindows)
{
    this->screen.open("wallpaper", {}, Kind::wallpaper);
    this->screen.open("left", this->left);
    EXPECT_TRUE(this->lists({"left"}));

    this->screen.open("panel", {}, Kind::panel);
    EXPECT_TRUE(eventually([&] { return this->screen.list().onScreen().size() == 2; }));
    const auto windows = this->screen.list().onScreen();
    ASSERT_EQ(windows.size(), 2U);
    EXPECT_GT(windows[0].layer, 0);
    EXPECT_EQ(windows[1].layer, 0);
}

TYPED_TEST(WindowListContract, reportsHowMuchOfAWindowIsSeen)
{
    this->screen.open("left", this->left);

    for (const double opacity : {0.0, 0.25, 1.0}) {
        this->screen.setOpacity("left", opacity);
        const auto windows = this->screen.list().onScreen();
        ASSERT_EQ(windows.size(), 1U);
        EXPECT_NEAR(windows[0].alpha.value_or(-1), opacity, 1e-9);
    }
}

} // namespace
} // namespace brindlex
