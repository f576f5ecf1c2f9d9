#include "eventtap/GlobalEventTapFixture.h"

namespace brindlex {
namespace {

TEST_F(GlobalEventTapTest, switchesItselfOnAgainEveryTime)
{
    tap.subscribe(~EventMask{0}, noting("all", EventVerdict::swallow));

    for (int round = 0; round < 3; ++round) {
        input.switchTapsOff(EventType::tapDisabledByTimeout);
        input.switchTapsOff(EventType::tapDisabledByUserInput);
        EXPECT_EQ(log.takeLines(),
            (Lines{"WARN [mouse] GlobalEventTap: re-enabled after tapDisabledByTimeout",
                "WARN [mouse] GlobalEventTap: re-enabled after tapDisabledByUserInput"}));
    }
    EXPECT_EQ(calls, Lines{});
    EXPECT_EQ(mouse.press(0), EventVerdict::swallow);
    EXPECT_EQ(input.tapsMade(), 1u);
}

TEST_F(GlobalEventTapTest, saysThatTheSystemRefusedAndKeepsTheSubscription)
{
    input.setRefusesTaps(true);
    tap.subscribe(keyPresses, noting("only"));

    EXPECT_EQ(log.takeLines(),
        (Lines{"WARN [mouse] CGEvent.tapCreate returned nil; check Accessibility and Input "
               "Monitoring permissions"}));
    EXPECT_FALSE(tap.isLive());

    input.setRefusesTaps(false);
    permissions.notify();

    EXPECT_EQ(log.takeLines(),
        (Lines{"INFO [mouse] GlobalEventTap: rebuilding, permission regained (ax-distributed)"}));
    keyboard.press(9);
    EXPECT_EQ(calls, Lines{"only"});
}

TEST_F(GlobalEventTapTest, triesAgainAtTheNextSubscription)
{
    input.setRefusesTaps(true);
    tap.subscribe(keyPresses, noting("first"));
    input.setRefusesTaps(false);
    tap.subscribe(wheel, noting("second"));

    EXPECT_EQ(input.tapMasks(), Masks{wheel | keyPresses});
}

TEST_F(GlobalEventTapTest, doesNothingWithoutSubscribersWhenTheProgramBecomesActive)
{
    activation.becomeActive();

    EXPECT_EQ(input.tapsMade(), 0u);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(GlobalEventTapTest, leavesAGoodTapAlone)
{
    tap.subscribe(keyPresses, noting("only"));

    activation.becomeActive();
    permissions.notify();

    EXPECT_EQ(input.tapsMade(), 1u);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(GlobalEventTapTest, goesWhenOnlyInputMonitoringIsLost)
{
    tap.subscribe(keyPresses, noting("only"));
    permissions.canListen = false;

    activation.becomeActive();

    EXPECT_EQ(log.takeLines(),
        (Lines{"WARN [mouse] GlobalEventTap: tearing down, permission lost (did-become-active)"}));
    EXPECT_EQ(input.tapMasks(), Masks{});
    activation.becomeActive();
    EXPECT_EQ(log.takeLines(), Lines{});
}

TEST_F(GlobalEventTapTest, goesAndComesWithAccessibility)
{
    tap.subscribe(keyPresses, noting("first"));
    tap.subscribe(keyPresses, noting("second"));
    permissions.isTrusted = false;
    permissions.notify();
    permissions.isTrusted = true;
    permissions.notify();

    EXPECT_EQ(log.takeLines(),
        (Lines{"WARN [mouse] GlobalEventTap: tearing down, permission lost (ax-distributed)",
            "INFO [mouse] GlobalEventTap: rebuilding, permission regained (ax-distributed)"}));
    keyboard.press(9);
    EXPECT_EQ(calls, (Lines{"first", "second"}));
}

TEST_F(GlobalEventTapTest, asksForBothPermissionsEachTime)
{
    permissions.isTrusted = false;
    permissions.notify();
    permissions.notify();

    EXPECT_EQ(permissions.timesAsked, 4);
}

} // namespace
} // namespace brindlex
