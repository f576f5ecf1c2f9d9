#include "app/OverlayHUDController.h"

#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedOverlayPanel.h"
#include "platform/simulated/SimulatedSessionLock.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Calls = std::vector<std::string>;

struct OverlayHUDControllerTest : testing::Test {
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedOverlayPanel panel{mainThread};
    SimulatedSessionLock lock;
    OverlayHUDController controller{panel, mainThread, lock};
};

TEST_F(OverlayHUDControllerTest, doesNotTouchThePanelBeforeFirstUse)
{
    mainThread.advance(10);

    EXPECT_EQ(panel.calls(), Calls{});
}

TEST_F(OverlayHUDControllerTest, showsTheTextAtOnce)
{
    controller.show("U.S.", 0.8);

    EXPECT_EQ(panel.text(), "U.S.");
    EXPECT_EQ(panel.calls(), Calls{"show U.S."});
}

TEST_F(OverlayHUDControllerTest, showsNothingAtALockedSession)
{
    lock.locked = true;
    controller.show("U.S.", 0.8);
    mainThread.advance(2);
    EXPECT_EQ(panel.calls(), Calls{});

    lock.locked = false;
    controller.show("German", 0.8);
    EXPECT_EQ(panel.calls(), Calls{"show German"});
}

TEST_F(OverlayHUDControllerTest, fadesOutAfterTheDurationAndNotBefore)
{
    controller.show("U.S.", 0.8);
    mainThread.advance(0.799);
    EXPECT_EQ(panel.calls(), Calls{"show U.S."});
    mainThread.advance(0.001);

    EXPECT_EQ(panel.calls(), (Calls{"show U.S.", "fadeOut"}));
    EXPECT_TRUE(panel.isFading());
    mainThread.advance(SimulatedOverlayPanel::fadeOutTime);
    EXPECT_EQ(panel.text(), std::nullopt);
}

TEST_F(OverlayHUDControllerTest, hidesBeforeItsTimeWhenItIsTakenBack)
{
    controller.show("U.S.", 0.8);
    controller.hide();
    EXPECT_EQ(panel.calls(), (Calls{"show U.S.", "fadeOut"}));
    mainThread.advance(10);
    EXPECT_EQ(panel.calls(), (Calls{"show U.S.", "fadeOut"})) << "only once";
}

TEST_F(OverlayHUDControllerTest, replacesTheTextAndStartsItsTimeAgain)
{
    controller.show("U.S.", 0.8);
    mainThread.advance(0.5);
    controller.show("拼音", 0.8);

    EXPECT_EQ(panel.text(), "拼音");
    mainThread.advance(0.799);
    EXPECT_EQ(panel.calls(), (Calls{"show U.S.", "show 拼音"}));
    mainThread.advance(0.001);
    EXPECT_EQ(panel.calls(), (Calls{"show U.S.", "show 拼音", "fadeOut"}));
}

TEST_F(OverlayHUDControllerTest, bringsAFadingPanelBack)
{
    controller.show("U.S.", 0.8);
    mainThread.advance(0.9);
    ASSERT_TRUE(panel.isFading());
    controller.show("拼音", 0.8);

    EXPECT_FALSE(panel.isFading());
    mainThread.advance(0.5);
    EXPECT_EQ(panel.text(), "拼音");
    mainThread.advance(0.3 + SimulatedOverlayPanel::fadeOutTime);
    EXPECT_EQ(panel.text(), std::nullopt);
    EXPECT_EQ(panel.calls(), (Calls{"show U.S.", "fadeOut", "show 拼音", "fadeOut"}));
}

TEST_F(OverlayHUDControllerTest, givesASecondMessageItsOwnDuration)
{
    controller.show("long", 5);
    controller.show("short", 0.1);
    mainThread.advance(0.1);

    EXPECT_TRUE(panel.isFading());
    mainThread.advance(10);
    EXPECT_EQ(panel.calls(), (Calls{"show long", "show short", "fadeOut"}));
}

TEST_F(OverlayHUDControllerTest, showsAgainAfterItHasGone)
{
    controller.show("U.S.", 0.8);
    mainThread.advance(2);
    controller.show("U.S.", 0.8);

    EXPECT_EQ(panel.text(), "U.S.");
}

TEST_F(OverlayHUDControllerTest, waitsForNothingWhenNothingIsShown)
{
    controller.show("U.S.", 0.8);
    mainThread.advance(2);

    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(OverlayHUDControllerTest, fadesInTheNextTurnWithoutADuration)
{
    controller.show("U.S.", 0);
    EXPECT_FALSE(panel.isFading());
    mainThread.runUntilIdle();

    EXPECT_TRUE(panel.isFading());
}

TEST(OverlayHUDController, cancelsWhatIsScheduled)
{
    SimulatedClock clock;
    SimulatedMainThread mainThread(clock);
    SimulatedOverlayPanel panel(mainThread);
    SimulatedSessionLock lock;
    {
        OverlayHUDController controller(panel, mainThread, lock);
        controller.show("U.S.", 0.8);
    }
    mainThread.advance(2);

    EXPECT_EQ(panel.calls(), Calls{"show U.S."});
}

} // namespace
} // namespace brindlex
