#include "platform/OverlayPanel.h"

#include "platform/linux/panels/QtOverlayPanel.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedOverlayPanel.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

class SimulatedScreen {
public:
    OverlayPanel& panel() { return panel_; }
    bool isShown() const { return panel_.text().has_value(); }
    bool until(const std::function<bool()>& condition)
    {
        for (int step = 0; step < 1000 && !condition(); ++step)
            mainThread_.advance(0.01);
        return condition();
    }
    void settle() { mainThread_.advance(1); }

private:
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    SimulatedOverlayPanel panel_{mainThread_};
};

class RealScreen {
public:
    OverlayPanel& panel() { return panel_; }
    bool isShown() const { return !windows_.unmanagedOf(getpid()).empty(); }
    bool until(const std::function<bool()>& condition) { return loopUntil(condition); }
    void settle()
    {
        loopThroughout(std::chrono::milliseconds(400), [] { return true; });
    }

private:
    XConnection server_;
    DesktopWindows windows_{server_};
    X11Connection connection_;
    QtOverlayPanel panel_{connection_};
};

template <typename Screen>
class OverlayPanelContract : public testing::Test {
protected:
    bool comes()
    {
        return screen.until([this] { return screen.isShown(); });
    }
    bool goes()
    {
        return screen.until([this] { return !screen.isShown(); });
    }

    Screen screen;
};

using Screens = testing::Types<SimulatedScreen, RealScreen>;
TYPED_TEST_SUITE(OverlayPanelContract, Screens);

TYPED_TEST(OverlayPanelContract, isNotOnTheScreenBeforeItIsShown)
{
    this->screen.settle();

    EXPECT_FALSE(this->screen.isShown());
}

TYPED_TEST(OverlayPanelContract, isOnTheScreenOnceItIsShown)
{
    this->screen.panel().show("U.S.");

    EXPECT_TRUE(this->comes());
}

TYPED_TEST(OverlayPanelContract, staysUntilItIsAskedToGo)
{
    this->screen.panel().show("U.S.");
    ASSERT_TRUE(this->comes());
    this->screen.settle();

    EXPECT_TRUE(this->screen.isShown());
}

TYPED_TEST(OverlayPanelContract, isOffTheScreenOnceItHasFadedOut)
{
    this->screen.panel().show("U.S.");
    ASSERT_TRUE(this->comes());
    this->screen.panel().fadeOut();

    EXPECT_TRUE(this->goes());
}

TYPED_TEST(OverlayPanelContract, staysWhenItIsShownAgainWhileItFades)
{
    this->screen.panel().show("U.S.");
    ASSERT_TRUE(this->comes());
    this->screen.panel().fadeOut();
    this->screen.panel().show("拼音");
    this->screen.settle();

    EXPECT_TRUE(this->screen.isShown());
}

TYPED_TEST(OverlayPanelContract, comesBackAfterItHasGone)
{
    this->screen.panel().show("U.S.");
    ASSERT_TRUE(this->comes());
    this->screen.panel().fadeOut();
    ASSERT_TRUE(this->goes());
    this->screen.panel().show("U.S.");

    EXPECT_TRUE(this->comes());
}

TYPED_TEST(OverlayPanelContract, hasNothingToFadeBeforeItWasShown)
{
    this->screen.panel().fadeOut();
    this->screen.settle();

    EXPECT_FALSE(this->screen.isShown());
}

TYPED_TEST(OverlayPanelContract, mayBeAskedToGoTwice)
{
    this->screen.panel().show("U.S.");
    ASSERT_TRUE(this->comes());
    this->screen.panel().fadeOut();
    this->screen.panel().fadeOut();

    EXPECT_TRUE(this->goes());
}

TYPED_TEST(OverlayPanelContract, takesAnyText)
{
    for (const auto& text : {std::string(), std::string("\xff\xfe"), std::string("a\nb\r\nc"),
             std::string(100'000, 'x'), std::string("العربية 😀 中文"), std::string(3, '\0')}) {
        this->screen.panel().show(text);
        EXPECT_TRUE(this->comes());
    }
}

} // namespace
} // namespace brindlex
