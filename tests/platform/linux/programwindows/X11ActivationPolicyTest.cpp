#include "platform/linux/programwindows/X11ActivationPolicy.h"

#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"

#include <QWidget>
#include <gtest/gtest.h>

#include <algorithm>

namespace brindlex {
namespace {

/// Windows of this program on a desktop with a window manager.
class X11ActivationPolicyTest : public testing::Test {
protected:
    void show(QWidget& window)
    {
        window.resize(200, 100);
        window.show();
    }
    static xcb_window_t numberOf(const QWidget& window)
    {
        return static_cast<xcb_window_t>(window.winId());
    }
    bool isManaged(const QWidget& window) const
    {
        const auto all = windows.managed();
        return std::ranges::find(all, numberOf(window)) != all.end();
    }
    /// How many of the two states by which a window keeps out of lists it has.
    long skips(const QWidget& window) const
    {
        const auto states = server.values(numberOf(window), "_NET_WM_STATE");
        return std::ranges::count(states, server.atom("_NET_WM_STATE_SKIP_TASKBAR"))
            + std::ranges::count(states, server.atom("_NET_WM_STATE_SKIP_PAGER"));
    }
    bool skipsSoon(const QWidget& window, long expected)
    {
        return loopUntil([&] { return isManaged(window) && skips(window) == expected; });
    }

    XConnection server;
    DesktopWindows windows{server};
    X11Connection connection;
    X11ActivationPolicy policy{connection};
};

TEST_F(X11ActivationPolicyTest, leavesWindowsAloneAtFirst)
{
    QWidget window;
    show(window);

    EXPECT_TRUE(skipsSoon(window, 0));
}

TEST_F(X11ActivationPolicyTest, takesAllOpenWindowsOutOfTheTaskBarAndPutsThemBack)
{
    QWidget first;
    QWidget second;
    show(first);
    show(second);
    ASSERT_TRUE(skipsSoon(first, 0) && skipsSoon(second, 0));

    for (int time = 0; time < 2; ++time) {
        policy.setActivationPolicy(ActivationPolicy::accessory);
        EXPECT_TRUE(skipsSoon(first, 2) && skipsSoon(second, 2));
        policy.setActivationPolicy(ActivationPolicy::regular);
        EXPECT_TRUE(skipsSoon(first, 0) && skipsSoon(second, 0));
    }
}

TEST_F(X11ActivationPolicyTest, takesAWindowOutThatHasJustBeenShown)
{
    QWidget window;
    show(window);

    policy.setActivationPolicy(ActivationPolicy::accessory);

    EXPECT_TRUE(skipsSoon(window, 2));
}

TEST_F(X11ActivationPolicyTest, keepsALaterWindowOutFromItsFirstMomentOn)
{
    policy.setActivationPolicy(ActivationPolicy::accessory);
    QWidget window;
    QWidget dialog(&window, Qt::Dialog);

    for (auto* later : {&window, &dialog}) {
        show(*later);
        ASSERT_TRUE(loopUntil([&] {
            // Whenever it is in the list it is out of the task bar.
            const bool isListed = isManaged(*later);
            EXPECT_TRUE(!isListed || skips(*later) == 2);
            return isListed;
        }));
        EXPECT_TRUE(skipsSoon(*later, 2));
    }
}

TEST_F(X11ActivationPolicyTest, keepsAWindowOutThatIsHiddenAndShownAgain)
{
    policy.setActivationPolicy(ActivationPolicy::accessory);
    QWidget window;
    show(window);
    ASSERT_TRUE(skipsSoon(window, 2));
    window.hide();
    ASSERT_TRUE(loopUntil([&] { return !isManaged(window); }));

    show(window);

    EXPECT_TRUE(skipsSoon(window, 2));
}

TEST_F(X11ActivationPolicyTest, keepsTheOtherStatesOfAWindow)
{
    policy.setActivationPolicy(ActivationPolicy::accessory);
    QWidget window;
    window.setWindowFlag(Qt::WindowStaysOnTopHint);
    show(window);

    EXPECT_TRUE(loopUntil([&] {
        const auto states = server.values(numberOf(window), "_NET_WM_STATE");
        return skips(window) == 2
            && std::ranges::count(states, server.atom("_NET_WM_STATE_ABOVE")) == 1;
    }));
}

TEST_F(X11ActivationPolicyTest, leavesAloneWhatTheWindowManagerDoesNotLookAfter)
{
    policy.setActivationPolicy(ActivationPolicy::accessory);
    QWidget overlay(nullptr, Qt::Tool | Qt::X11BypassWindowManagerHint);
    QWidget menu(nullptr, Qt::Popup);

    for (auto* window : {&overlay, &menu}) {
        show(*window);
        ASSERT_TRUE(loopUntil([&] { return windows.isOnScreen(numberOf(*window)); }));
        EXPECT_EQ(skips(*window), 0);
        window->hide();
    }
}

} // namespace
} // namespace brindlex
