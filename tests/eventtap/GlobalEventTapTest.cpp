#include "eventtap/GlobalEventTapFixture.h"

namespace brindlex {
namespace {

TEST_F(GlobalEventTapTest, isOneTapForAllMasks)
{
    tap.subscribe(presses, noting("first"));
    tap.subscribe(eventMask(EventType::otherMouseUp, EventType::keyDown), noting("second"));

    EXPECT_EQ(input.tapMasks(), Masks{presses | keyPresses});
    EXPECT_EQ(input.tapsMade(), 2u);
    mouse.press(2);
    mouse.release(2);
    keyboard.press(9);
    EXPECT_EQ(calls, (Lines{"first", "first", "second", "second"}));
}

TEST_F(GlobalEventTapTest, asksEverySubscriberAlsoWhenTheFirstSwallows)
{
    tap.subscribe(presses, noting("first", EventVerdict::swallow));
    tap.subscribe(presses, noting("second", EventVerdict::pass));

    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
    EXPECT_EQ(calls, (Lines{"first", "second"}));
    EXPECT_EQ(input.takeDelivered(), std::vector<Event>{});
}

TEST_F(GlobalEventTapTest, swallowsForTheLastSubscriberToo)
{
    tap.subscribe(presses, noting("first", EventVerdict::pass));
    tap.subscribe(presses, noting("second", EventVerdict::swallow));

    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
}

TEST_F(GlobalEventTapTest, showsTheEventAsItCame)
{
    Event seen;
    tap.subscribe(presses, [&](const Event& event) {
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
    const auto first = tap.subscribe(presses, noting("first"));
    tap.subscribe(presses, noting("second"));
    tap.unsubscribe(first);
    tap.subscribe(presses, noting("first"));

    mouse.press(2);

    EXPECT_EQ(calls, (Lines{"second", "first"}));
}

TEST_F(GlobalEventTapTest, hasNoTapWithoutSubscribers)
{
    EXPECT_EQ(input.tapMasks(), Masks{});
    const auto id = tap.subscribe(keyPresses, noting("only"));
    EXPECT_TRUE(tap.isLive());

    tap.unsubscribe(id);

    EXPECT_FALSE(tap.isLive());
    EXPECT_EQ(input.tapMasks(), Masks{});
    EXPECT_EQ(keyboard.press(9), EventVerdict::pass);
    EXPECT_EQ(calls, Lines{});
}

TEST_F(GlobalEventTapTest, isRebuiltForAnIdentifierThatItDoesNotKnow)
{
    tap.subscribe(keyPresses, noting("only"));

    tap.unsubscribe(Uuid::random());

    EXPECT_EQ(input.tapMasks(), Masks{keyPresses});
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

TEST_F(GlobalEventTapTest, changesTriggersWithoutANewTap)
{
    const auto id = tap.subscribe(presses, noting("first"), EventTriggers{{{2, {}}}, {}, false});
    tap.subscribe(presses, noting("second"), EventTriggers{{{3, {}}}, {}, false});

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
        mouseButtonMaskOf(2),
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
        tap.subscribe(
            GlobalEventTapTest::keyPresses, [](const Event&) { return EventVerdict::swallow; });
    }
    EXPECT_EQ(input.tapMasks(), std::vector<EventMask>{});
    EXPECT_FALSE(activation.isObserved());
    permissions.notify();
}

} // namespace
} // namespace brindlex
