#include "mouse/GlobalEventTap.h"

#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedMouse.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "support/RecordedLog.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;
using Masks = std::vector<EventMask>;

class GlobalEventTapTest : public testing::Test {
protected:
    /// A handler that notes its name and answers the verdict.
    GlobalEventTap::Handler noting(std::string name, EventVerdict verdict = EventVerdict::pass)
    {
        return [this, name = std::move(name), verdict](const Event&) {
            calls.push_back(name);
            return verdict;
        };
    }

    RecordedLog log;
    SimulatedInput input;
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    SimulatedMouse mouse{input};
    SimulatedKeyboard keyboard{input};
    Lines calls;
    GlobalEventTap tap{input, permissions, activation};
};

TEST_F(GlobalEventTapTest, isOneTapForAllMasks)
{
    tap.subscribe(0x6000000, noting("first"));
    tap.subscribe(0x4000400, noting("second"));

    EXPECT_EQ(input.tapMasks(), Masks{0x6000400});
    EXPECT_EQ(input.tapsMade(), 2u);
    mouse.press(2);
    mouse.release(2);
    keyboard.press(9);
    EXPECT_EQ(calls, (Lines{"first", "first", "second", "second"}));
}

TEST_F(GlobalEventTapTest, asksEverySubscriberAlsoWhenTheFirstSwallows)
{
    tap.subscribe(0x6000000, noting("first", EventVerdict::swallow));
    tap.subscribe(0x6000000, noting("second", EventVerdict::pass));

    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
    EXPECT_EQ(calls, (Lines{"first", "second"}));
    EXPECT_EQ(input.takeDelivered(), std::vector<Event>{});
}

TEST_F(GlobalEventTapTest, swallowsForTheLastSubscriberToo)
{
    tap.subscribe(0x6000000, noting("first", EventVerdict::pass));
    tap.subscribe(0x6000000, noting("second", EventVerdict::swallow));

    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
}

TEST_F(GlobalEventTapTest, showsTheEventAsItCame)
{
    Event seen;
    tap.subscribe(0x6000000, [&](const Event& event) {
        seen = event;
        return EventVerdict::pass;
    });
    keyboard.holdModifiers(eventFlag::command);
    mouse.moveTo({3, 4});
    input.takeDelivered();

    EXPECT_EQ(mouse.press(3), EventVerdict::pass);

    const Event expected{EventType::otherMouseDown, {3, 4}, eventFlag::command,
        {{EventField::mouseEventButtonNumber, 3}}};
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(input.delivered(), std::vector{expected});
}

TEST_F(GlobalEventTapTest, putsWhoSubscribesAgainBehindTheOthers)
{
    const auto first = tap.subscribe(0x6000000, noting("first"));
    tap.subscribe(0x6000000, noting("second"));
    tap.unsubscribe(first);
    tap.subscribe(0x6000000, noting("first"));

    mouse.press(2);

    EXPECT_EQ(calls, (Lines{"second", "first"}));
}

TEST_F(GlobalEventTapTest, hasNoTapWithoutSubscribers)
{
    EXPECT_EQ(input.tapMasks(), Masks{});
    const auto id = tap.subscribe(1024, noting("only"));
    EXPECT_TRUE(tap.isLive());

    tap.unsubscribe(id);

    EXPECT_FALSE(tap.isLive());
    EXPECT_EQ(input.tapMasks(), Masks{});
    EXPECT_EQ(keyboard.press(9), EventVerdict::pass);
    EXPECT_EQ(calls, Lines{});
}

TEST_F(GlobalEventTapTest, isRebuiltForAnIdentifierThatItDoesNotKnow)
{
    tap.subscribe(1024, noting("only"));

    tap.unsubscribe(Uuid::random());

    EXPECT_EQ(input.tapMasks(), Masks{1024});
    EXPECT_EQ(input.tapsMade(), 2u);
}

TEST_F(GlobalEventTapTest, neverMatchesATypeBeyondTheMask)
{
    tap.subscribe(~EventMask{0}, noting("all"));

    for (const auto number : {64u, 65u, 96u, 0xFFFFFFFDu})
        EXPECT_EQ(
            input.send(0, Event{static_cast<EventType>(number), {}, 0, {}}), EventVerdict::pass);
    EXPECT_EQ(calls, Lines{});
    input.send(0, Event{static_cast<EventType>(63), {}, 0, {}});
    EXPECT_EQ(calls, Lines{"all"});
}

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
    tap.subscribe(1024, noting("only"));

    EXPECT_EQ(log.takeLines(),
        (Lines{"WARN [mouse] CGEvent.tapCreate returned nil; check Accessibility and Input "
               "Monitoring permissions"}));
    EXPECT_FALSE(tap.isLive());

    input.setRefusesTaps(false);
    permissions.tell();

    EXPECT_EQ(log.takeLines(),
        (Lines{"INFO [mouse] GlobalEventTap: rebuilding, permission regained (ax-distributed)"}));
    keyboard.press(9);
    EXPECT_EQ(calls, Lines{"only"});
}

TEST_F(GlobalEventTapTest, triesAgainAtTheNextSubscription)
{
    input.setRefusesTaps(true);
    tap.subscribe(1024, noting("first"));
    input.setRefusesTaps(false);
    tap.subscribe(0x400000, noting("second"));

    EXPECT_EQ(input.tapMasks(), Masks{0x400400});
}

TEST_F(GlobalEventTapTest, doesNothingWithoutSubscribersWhenTheProgramBecomesActive)
{
    activation.becomeActive();

    EXPECT_EQ(input.tapsMade(), 0u);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(GlobalEventTapTest, leavesAGoodTapAlone)
{
    tap.subscribe(1024, noting("only"));

    activation.becomeActive();
    permissions.tell();

    EXPECT_EQ(input.tapsMade(), 1u);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(GlobalEventTapTest, goesWhenOnlyInputMonitoringIsLost)
{
    tap.subscribe(1024, noting("only"));
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
    tap.subscribe(1024, noting("first"));
    tap.subscribe(1024, noting("second"));
    permissions.isTrusted = false;
    permissions.tell();
    permissions.isTrusted = true;
    permissions.tell();

    EXPECT_EQ(log.takeLines(),
        (Lines{"WARN [mouse] GlobalEventTap: tearing down, permission lost (ax-distributed)",
            "INFO [mouse] GlobalEventTap: rebuilding, permission regained (ax-distributed)"}));
    keyboard.press(9);
    EXPECT_EQ(calls, (Lines{"first", "second"}));
}

TEST_F(GlobalEventTapTest, asksForBothPermissionsEachTime)
{
    permissions.isTrusted = false;
    permissions.tell();
    permissions.tell();

    EXPECT_EQ(permissions.timesAsked, 4);
}

TEST_F(GlobalEventTapTest, letsAHandlerEndItsOwnSubscription)
{
    Uuid id;
    id = tap.subscribe(1024, [&](const Event&) {
        tap.unsubscribe(id);
        return EventVerdict::swallow;
    });

    EXPECT_EQ(keyboard.press(9), EventVerdict::swallow);
    EXPECT_EQ(keyboard.press(10), EventVerdict::pass);
    EXPECT_FALSE(tap.isLive());
}

TEST_F(GlobalEventTapTest, walksTheSubscribersThatThereWereWhenTheEventCame)
{
    Uuid second;
    bool isFirst = true;
    tap.subscribe(1024, [&](const Event&) {
        if (std::exchange(isFirst, false)) {
            tap.unsubscribe(second);
            tap.subscribe(1024, noting("third"));
        }
        return EventVerdict::pass;
    });
    second = tap.subscribe(1024, noting("second"));

    keyboard.press(9);
    EXPECT_EQ(calls, Lines{"second"});
    keyboard.press(9);
    EXPECT_EQ(calls, (Lines{"second", "third"}));
}

TEST_F(GlobalEventTapTest, survivesTheLossOfPermissionInsideAHandler)
{
    tap.subscribe(1024, [&](const Event&) {
        permissions.set(false);
        permissions.tell();
        return EventVerdict::swallow;
    });

    EXPECT_EQ(keyboard.press(9), EventVerdict::swallow);
    EXPECT_EQ(keyboard.press(9), EventVerdict::pass);
}

TEST_F(GlobalEventTapTest, changesTriggersWithoutANewTap)
{
    const auto id = tap.subscribe(0x6000000, noting("first"), EventTriggers{{{2, {}}}, {}, false});
    tap.subscribe(0x6000000, noting("second"), EventTriggers{{{3, {}}}, {}, false});

    tap.setTriggers(id, EventTriggers{{{4, {}}}, {}, false});

    EXPECT_EQ(input.tapsMade(), 2u);
    mouse.press(4);
    EXPECT_EQ(calls, (Lines{"first", "second"}));
}

TEST(GlobalEventTap, atTheDevicesSeesWhatItsTriggersBegin)
{
    SimulatedInput input(SimulatedInput::TapPlace::devices);
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    SimulatedMouse mouse(input);
    GlobalEventTap tap(input, permissions, activation);
    std::vector<EventType> seen;
    const auto id = tap.subscribe(
        0xE000000,
        [&](const Event& event) {
            seen.push_back(event.type);
            return EventVerdict::swallow;
        },
        EventTriggers{{{3, {}}}, {}, false});

    EXPECT_EQ(mouse.press(2), EventVerdict::pass);
    EXPECT_EQ(mouse.release(2), EventVerdict::pass);
    EXPECT_EQ(seen, std::vector<EventType>{});
    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
    mouse.moveTo({1, 1});
    EXPECT_EQ(mouse.release(3), EventVerdict::swallow);
    EXPECT_EQ(seen,
        (std::vector{
            EventType::otherMouseDown, EventType::otherMouseDragged, EventType::otherMouseUp}));

    tap.setTriggers(id, EventTriggers{{{2, {}}}, {}, false});
    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    mouse.release(3);
    EXPECT_EQ(mouse.press(2), EventVerdict::swallow);
}

TEST(GlobalEventTap, leavesNothingBehind)
{
    SimulatedInput input;
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    {
        GlobalEventTap tap(input, permissions, activation);
        tap.subscribe(1024, [](const Event&) { return EventVerdict::swallow; });
    }
    EXPECT_EQ(input.tapMasks(), Masks{});
    EXPECT_FALSE(activation.isObserved());
    permissions.tell();
}

} // namespace
} // namespace brindlex
