#include "mouse/MouseGestureManager.h"

#include "mouse/MouseSession.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;
using Masks = std::vector<EventMask>;

class MouseGestureManagerTest : public testing::Test, protected MouseSession { };

Event click(EventType type, std::int64_t button, Point point, std::uint64_t flags = 0)
{
    return {type, point, flags,
        {{EventField::mouseEventButtonNumber, button},
            {EventField::eventSourceUserData, 0x4D4F534547535452}}};
}

TEST_F(MouseGestureManagerTest, takesNothingWithoutBindings)
{
    gestures.start();

    EXPECT_EQ(input.tapMasks(), Masks{});
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(MouseGestureManagerTest, performsADragAndHidesIt)
{
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    EXPECT_EQ(input.tapMasks(), Masks{mouseButtonMaskOf(2)});
    mouse.moveTo({100, 100});
    input.takeDelivered();

    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
    EXPECT_EQ(mouse.moveTo({130, 100}), EventVerdict::swallow);
    EXPECT_EQ(mouse.release(3), EventVerdict::swallow);

    EXPECT_EQ(log.lines(),
        (Lines{"INFO [mouse] MouseGesture: pending Side Back (4)",
            "INFO [mouse] MouseGesture: locked Side Back (4) Right",
            "INFO [mouse] MouseGesture: dispatched on lock Side Back (4) Right",
            "INFO [mouse] dispatch action: Forward"}));
    const EventFields key{{EventField::keyboardEventKeycode, 30}};
    EXPECT_EQ(input.delivered(),
        (std::vector<Event>{{EventType::keyDown, {130, 100}, eventFlag::command, key},
            {EventType::keyUp, {130, 100}, eventFlag::command, key}}));
}

TEST_F(MouseGestureManagerTest, givesAMiddleClickBackToTheApplication)
{
    bindGesture(MouseButton::button3, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    mouse.moveTo({100, 100});
    input.takeDelivered();

    EXPECT_EQ(mouse.press(2), EventVerdict::swallow);
    EXPECT_EQ(mouse.release(2), EventVerdict::swallow);

    EXPECT_EQ(input.delivered(),
        (std::vector{click(EventType::otherMouseDown, 2, {100, 100}),
            click(EventType::otherMouseUp, 2, {100, 100})}));
}

TEST_F(MouseGestureManagerTest, givesBackAClickWithTheModifiersThatAreHeld)
{
    bindGesture(MouseButton::button3, ModifierSet::control, MouseDirection::right,
        MouseAction::Plain::forward);
    gestures.start();
    keyboard.holdModifiers(eventFlag::control);
    input.takeDelivered();

    mouse.press(2);
    mouse.release(2);

    EXPECT_EQ(input.delivered(),
        (std::vector{click(EventType::otherMouseDown, 2, {}, eventFlag::control),
            click(EventType::otherMouseUp, 2, {}, eventFlag::control)}));
}

TEST_F(MouseGestureManagerTest, givesBackNothingWhenThePressCannotBeMade)
{
    bindGesture(MouseButton::button3, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    input.setCannotMake(
        [](const SyntheticEvent& event) { return event.type == EventType::otherMouseDown; });

    mouse.press(2);
    mouse.release(2);

    EXPECT_EQ(input.delivered(), std::vector<Event>{});
}

TEST_F(MouseGestureManagerTest, staysAtItsPlaceWhenBindingsChangeWithinTheirButtons)
{
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    gestures.install(mouseButtonMaskOf(2));
    bindGesture(MouseButton::button5, {}, MouseDirection::left, MouseAction::Plain::back);
    EXPECT_EQ(input.tapsMade(), 1u);

    mouse.moveTo({100, 100});
    mouse.press(4);
    mouse.moveTo({60, 100});

    EXPECT_EQ(log.lines().back(), "INFO [mouse] dispatch action: Back");
}

TEST(MouseGestureManager, takesFromTheDevicesWhatItsBindingsAreAboutNow)
{
    MouseSession session({}, SimulatedInput::TapPlace::devices);
    session.bindGesture(
        MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    session.gestures.start();
    session.bindGesture(MouseButton::button5, {}, MouseDirection::right, MouseAction::Plain::back);

    EXPECT_EQ(session.mouse.press(4), EventVerdict::swallow);
    session.mouse.release(4);
    session.edit(
        [](MouseConfig& value) { value.gesture.bindings.erase(value.gesture.bindings.begin()); });
    EXPECT_EQ(session.mouse.press(3), EventVerdict::pass);
    EXPECT_EQ(session.input.tapsMade(), 1u);
}

TEST_F(MouseGestureManagerTest, takesAnotherPlaceForOtherButtons)
{
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    mouse.press(3);

    bindGesture(MouseButton::right, {}, MouseDirection::right, MouseAction::Plain::forward);

    EXPECT_EQ(input.tapMasks(), Masks{mouseButtonMaskOf(1) | mouseButtonMaskOf(2)});
    log.takeLines();
    EXPECT_EQ(mouse.release(3), EventVerdict::pass);
    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] MouseGesture: up without pending Side Back (4)"}));
}

TEST_F(MouseGestureManagerTest, letsGoOfAPressWhenGesturesAreSwitchedOff)
{
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    mouse.press(3);
    log.takeLines();

    edit([](MouseConfig& value) { value.gesture.enabled = false; });

    EXPECT_EQ(input.tapMasks(), Masks{});
    EXPECT_EQ(mouse.release(3), EventVerdict::pass);
    EXPECT_EQ(log.lines(), Lines{});
    edit([](MouseConfig& value) { value.gesture.enabled = true; });
    EXPECT_EQ(input.tapMasks(), Masks{mouseButtonMaskOf(2)});
}

TEST_F(MouseGestureManagerTest, knowsNothingOfAPressFromBeforeItWasSwitchedOff)
{
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    mouse.press(3);
    edit([](MouseConfig& value) { value.gesture.enabled = false; });
    edit([](MouseConfig& value) { value.gesture.enabled = true; });
    log.takeLines();

    EXPECT_EQ(mouse.moveTo({300, 0}), EventVerdict::pass);
    EXPECT_EQ(mouse.release(3), EventVerdict::pass);

    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] MouseGesture: up without pending Side Back (4)"}));
}

TEST_F(MouseGestureManagerTest, givesUpItsPlaceWhenItMayNotTakeAnother)
{
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    permissions.canListen = false;

    bindGesture(MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::forward);

    EXPECT_EQ(log.lines(),
        (Lines{"WARN [mouse] MouseGesture: missing Accessibility or Input Monitoring permission; "
               "not starting"}));
    EXPECT_EQ(input.tapMasks(), Masks{});
    permissions.canListen = true;
    mainThread.advance(2);
    EXPECT_EQ(input.tapMasks(), Masks{mouseButtonMaskOf(0) | mouseButtonMaskOf(2)});
}

TEST_F(MouseGestureManagerTest, waitsForPermission)
{
    permissions.canListen = false;
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    log.takeLines();
    const Lines missing{"WARN [mouse] MouseGesture: missing Accessibility or Input Monitoring "
                        "permission; not starting"};

    gestures.start();
    EXPECT_EQ(log.takeLines(), missing);
    mainThread.advance(2);
    EXPECT_EQ(log.takeLines(), missing);
    activation.becomeActive();
    EXPECT_EQ(log.takeLines(), missing);
    EXPECT_EQ(input.tapsMade(), 0u);

    bindGesture(MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::forward);
    log.takeLines();
    permissions.canListen = true;
    mainThread.advance(2);

    EXPECT_EQ(log.takeLines(), Lines{});
    EXPECT_EQ(input.tapMasks(), Masks{mouseButtonMaskOf(0) | mouseButtonMaskOf(2)});
    EXPECT_EQ(mainThread.timers(), 0u);
}

TEST_F(MouseGestureManagerTest, triesNoMoreAfterTearDown)
{
    permissions.set(false);
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();

    gestures.tearDown();
    permissions.set(true);
    mainThread.advance(10);
    activation.becomeActive();

    EXPECT_EQ(input.tapsMade(), 0u);
}

TEST_F(MouseGestureManagerTest, standsAsideForAResizeOfAWindow)
{
    bindGesture(MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    windows.windows = {{0, 1.0, Rect{{0, 0}, {100, 100}}}};
    mouse.moveTo({103, 50});
    log.takeLines();

    EXPECT_EQ(mouse.press(0), EventVerdict::pass);

    const auto lines = log.takeLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].find("INFO [mouse] MouseGesture: left down decision decision=bypass "
                            "reason=windowEdge point=103.0,50.0 cursor=currentSystem="),
        0u)
        << lines[0];
    EXPECT_TRUE(lines[0].ends_with("ax=resizeControl=false roles=none windowEdge=true"));
    EXPECT_EQ(
        lines[1], "INFO [mouse] MouseGesture: bypass left gesture for resize cursor/window edge");
    mouse.moveTo({50, 50});
    EXPECT_EQ(mouse.press(0), EventVerdict::swallow);
}

TEST_F(MouseGestureManagerTest, comesBackWithTheTap)
{
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    gestures.start();
    permissions.set(false);
    permissions.notify();
    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    permissions.set(true);
    permissions.notify();

    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
}

TEST_F(MouseGestureManagerTest, canGoWhileAnEventIsOnItsWay)
{
    auto second = std::make_unique<MouseGestureManager>(config, environment,
        MouseGestureManager::Abilities{input, dispatcher, detector, clock, displayScale});
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);
    second->tearDown();
    gestures.tearDown();
    tap.subscribe(eventMask(EventType::otherMouseDown, EventType::otherMouseUp), [&](const Event&) {
        second.reset();
        return EventVerdict::pass;
    });
    second->start();

    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    EXPECT_EQ(second, nullptr);
}

} // namespace
} // namespace brindlex
