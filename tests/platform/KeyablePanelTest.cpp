#include "platform/KeyablePanel.h"

#include "platform/linux/panels/QtKeyablePanel.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedKeyablePanel.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "support/hardware/PlayedInput.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"

#include <QWindow>
#include <gtest/gtest.h>

#include <chrono>

namespace brindlex {
namespace {

class SimulatedPanelDesk {
public:
    KeyablePanel& panel() { return panel_; }
    bool hasKeys() const { return panel_.isKey(); }
    /// Another window takes the keys.
    void takeKeys() { panel_.resignKey(); }
    void pressOutside() { panel_.pressOutside(); }
    /// Lets all that is on its way arrive, fades included.
    void settle() { mainThread_.advance(1); }

private:
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    SimulatedKeyablePanel panel_{mainThread_};
};

/// A desktop whose keys another window of the program can take.
class RealPanelDesk {
public:
    KeyablePanel& panel() { return panel_; }
    /// Takes them from nobody.
    bool hasKeys() const
    {
        const XReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(server_.get(),
            xcb_grab_keyboard(server_.get(), false, server_.root(), XCB_CURRENT_TIME,
                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
            nullptr));
        xcb_ungrab_keyboard(server_.get(), XCB_CURRENT_TIME);
        server_.sync();
        return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
    }
    void takeKeys()
    {
        other_.setGeometry(700, 500, 200, 100);
        other_.show();
        windows_.requestActivation(static_cast<xcb_window_t>(other_.winId()));
        loopUntil([this] { return other_.isActive(); });
    }
    void pressOutside() { input_.click(1000, 700); }
    void settle()
    {
        loopThroughout(std::chrono::milliseconds(300), [] { return true; });
    }

private:
    XConnection server_;
    DesktopWindows windows_{server_};
    PlayedInput input_{server_};
    X11Connection connection_;
    QtKeyablePanel panel_{connection_};
    QWindow other_;
};

template <typename Desk>
class KeyablePanelContract : public testing::Test {
protected:
    /// Shows the panel with the keys.
    void show()
    {
        panel.setFrame({{100, 50}, {300, 200}});
        panel.makeKeyAndOrderFront();
        desk.settle();
    }

    Desk desk;
    KeyablePanel& panel = desk.panel();
    int resignations = 0;
    int presses = 0;
    Subscription keyObserver = panel.observeDidResignKey([this] { ++resignations; });
    Subscription pressObserver = panel.observePressOutside([this] { ++presses; });
};

using PanelDesks = testing::Types<SimulatedPanelDesk, RealPanelDesk>;
TYPED_TEST_SUITE(KeyablePanelContract, PanelDesks);

TYPED_TEST(KeyablePanelContract, isNotOnTheScreenAtFirst)
{
    EXPECT_FALSE(this->panel.isVisible());
    EXPECT_FALSE(this->desk.hasKeys());
    this->desk.pressOutside();
    EXPECT_EQ(this->presses, 0);
}

TYPED_TEST(KeyablePanelContract, comesWithTheKeysToItsPlace)
{
    this->show();
    EXPECT_TRUE(this->panel.isVisible());
    EXPECT_TRUE(this->desk.hasKeys());
    EXPECT_EQ(this->panel.frame(), (Rect{{100, 50}, {300, 200}}));
}

TYPED_TEST(KeyablePanelContract, leavesTheKeysWhereTheyAreWhenItOnlyComes)
{
    this->panel.setAlpha(0);
    this->panel.orderFront();
    this->desk.settle();
    EXPECT_TRUE(this->panel.isVisible());
    EXPECT_EQ(this->panel.alpha(), 0);
    EXPECT_FALSE(this->desk.hasKeys());
}

TYPED_TEST(KeyablePanelContract, goesWithoutNotifyingOfTheKeys)
{
    this->show();
    this->panel.orderOut();
    this->desk.settle();
    EXPECT_FALSE(this->panel.isVisible());
    EXPECT_FALSE(this->desk.hasKeys());
    EXPECT_EQ(this->resignations, 0);
    this->panel.orderOut();
    EXPECT_FALSE(this->panel.isVisible());
}

TYPED_TEST(KeyablePanelContract, comesBackWhereItWas)
{
    this->show();
    this->panel.orderOut();
    this->panel.makeKeyAndOrderFront();
    this->desk.settle();
    EXPECT_TRUE(this->panel.isVisible());
    EXPECT_TRUE(this->desk.hasKeys());
    EXPECT_EQ(this->panel.frame(), (Rect{{100, 50}, {300, 200}}));
    EXPECT_EQ(this->resignations, 0);
}

TYPED_TEST(KeyablePanelContract, notifiesOnceThatAnotherWindowHasTakenTheKeys)
{
    this->show();
    this->desk.takeKeys();
    this->desk.settle();
    EXPECT_EQ(this->resignations, 1);
    EXPECT_TRUE(this->panel.isVisible());
    this->panel.makeKeyAndOrderFront();
    this->desk.settle();
    EXPECT_TRUE(this->desk.hasKeys());
    EXPECT_EQ(this->resignations, 1);
}

TYPED_TEST(KeyablePanelContract, notifiesOfPressesOutsideWhileItIsVisible)
{
    this->show();
    this->desk.pressOutside();
    this->desk.pressOutside();
    this->desk.settle();
    EXPECT_EQ(this->presses, 2);
    this->panel.orderOut();
    this->desk.pressOutside();
    this->desk.settle();
    EXPECT_EQ(this->presses, 2);
}

TYPED_TEST(KeyablePanelContract, letsAnObserverOfPressesEndInsideItsHandler)
{
    this->show();
    int notified = 0;
    this->pressObserver = this->panel.observePressOutside([&] {
        ++notified;
        this->pressObserver.reset();
    });
    this->desk.pressOutside();
    this->desk.pressOutside();
    this->desk.settle();
    EXPECT_EQ(notified, 1);
}

TYPED_TEST(KeyablePanelContract, fadesInFromWhatItIs)
{
    this->panel.setAlpha(0);
    this->show();
    EXPECT_EQ(this->panel.alpha(), 0);
    this->panel.fadeIn();
    this->desk.settle();
    EXPECT_EQ(this->panel.alpha(), 1);
}

TYPED_TEST(KeyablePanelContract, endsAFadeThatIsOvertaken)
{
    this->panel.setAlpha(0);
    this->show();
    this->panel.fadeIn();
    this->panel.setAlpha(0);
    this->desk.settle();
    EXPECT_EQ(this->panel.alpha(), 0);
    this->panel.fadeIn();
    this->panel.orderOut();
    this->panel.setAlpha(0);
    this->panel.makeKeyAndOrderFront();
    this->desk.settle();
    EXPECT_EQ(this->panel.alpha(), 0);
}

TYPED_TEST(KeyablePanelContract, canBeLargerThanTheScreenAndLieOutside)
{
    const Rect frame{{-3000, -2000}, {9000, 8000}};
    this->panel.setFrame(frame);
    this->panel.makeKeyAndOrderFront();
    this->desk.settle();
    EXPECT_EQ(this->panel.frame(), frame);
}

} // namespace
} // namespace brindlex
