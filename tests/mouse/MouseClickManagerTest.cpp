#include "mouse/MouseClickManager.h"

#include "mouse/MouseSession.h"

#include <gtest/gtest.h>

#include <memory>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;
using Masks = std::vector<EventMask>;

class MouseClickManagerTest : public testing::Test, protected MouseSession { };

TEST_F(MouseClickManagerTest, takesTheOtherButtonsWhateverTheSettingSays)
{
    edit([](MouseConfig& value) { value.click.enabled = false; });
    bindClick(MouseButton::button4, {}, MouseAction::Plain::back);

    clicks.start();
    clicks.start();

    EXPECT_EQ(input.tapMasks(), Masks{mouseClickEventMask});
    EXPECT_EQ(input.tapsMade(), 1u);
    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
    EXPECT_EQ(mouse.release(3), EventVerdict::swallow);
    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] dispatch action: Back"}));
}

TEST_F(MouseClickManagerTest, followsAChangeOfTheSetting)
{
    clicks.start();
    edit([](MouseConfig& value) { value.click.enabled = false; });
    EXPECT_EQ(input.tapMasks(), Masks{});
    edit([](MouseConfig& value) { value.click.enabled = false; });
    edit([](MouseConfig& value) { value.click.enabled = true; });
    EXPECT_EQ(input.tapMasks(), Masks{mouseClickEventMask});
    edit([](MouseConfig& value) { value.gesture.distanceThreshold = 40; });
    EXPECT_EQ(input.tapsMade(), 2u);
}

TEST_F(MouseClickManagerTest, readsTheBindingsAtEachPress)
{
    clicks.start();
    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    EXPECT_EQ(mouse.release(3), EventVerdict::pass);

    bindClick(MouseButton::button4, {}, MouseAction::Plain::back);

    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
}

TEST(MouseClickManager, takesFromTheDevicesWhatItsBindingsAreAboutNow)
{
    MouseSession session({}, SimulatedInput::TapPlace::devices);
    session.clicks.start();
    session.bindClick(MouseButton::button4, {}, MouseAction::Plain::back);

    EXPECT_EQ(session.mouse.press(3), EventVerdict::swallow);
    session.mouse.release(3);
    session.edit([](MouseConfig& value) { value.click.bindings[0].button = MouseButton::button5; });
    EXPECT_EQ(session.mouse.press(3), EventVerdict::pass);
    EXPECT_EQ(session.mouse.press(4), EventVerdict::swallow);
    EXPECT_EQ(session.input.tapsMade(), 1u);
}

TEST_F(MouseClickManagerTest, forgetsAHiddenPressWhenItIsTornDown)
{
    bindClick(MouseButton::button4, {}, MouseAction::Plain::back);
    clicks.start();
    mouse.press(3);
    clicks.tearDown();
    EXPECT_EQ(mouse.release(3), EventVerdict::pass);
    mouse.press(3);

    clicks.start();

    EXPECT_EQ(mouse.release(3), EventVerdict::pass);
}

TEST_F(MouseClickManagerTest, waitsForPermission)
{
    permissions.isTrusted = false;
    clicks.start();
    EXPECT_EQ(log.takeLines(),
        (Lines{"WARN [mouse] MouseClick: missing Accessibility or Input Monitoring permission; "
               "not starting"}));

    EXPECT_EQ(input.tapsMade(), 0u);
    mainThread.advance(2);
    EXPECT_EQ(log.takeLines().size(), 1u);

    permissions.isTrusted = true;
    activation.becomeActive();

    EXPECT_EQ(input.tapMasks(), Masks{mouseClickEventMask});
    EXPECT_EQ(mainThread.timers(), 0u);
}

TEST_F(MouseClickManagerTest, performsOnceMoreForAClickThatAGestureGaveBack)
{
    clicks.start();
    bindClick(MouseButton::button4, {}, MouseAction::Plain::back);
    bindGesture(MouseButton::button4, {}, MouseDirection::right, MouseAction::Plain::forward);

    mouse.press(3);
    mouse.release(3);

    EXPECT_EQ(log.lines(),
        (Lines{"INFO [mouse] dispatch action: Back",
            "INFO [mouse] MouseGesture: pending Side Back (4)",
            "INFO [mouse] dispatch action: Back"}));
    std::vector<EventType> types;
    for (const auto& event : input.delivered())
        types.push_back(event.type);
    EXPECT_EQ(types,
        (std::vector{EventType::keyDown, EventType::keyUp, EventType::otherMouseDown,
            EventType::otherMouseUp, EventType::keyDown, EventType::keyUp}));
}

TEST_F(MouseClickManagerTest, canGoWhileAnEventIsOnItsWay)
{
    auto second = std::make_unique<MouseClickManager>(config, environment, dispatcher);
    bindClick(MouseButton::button4, {}, MouseAction::Plain::back);
    tap.subscribe(mouseClickEventMask, [&](const Event&) {
        second.reset();
        return EventVerdict::pass;
    });
    second->start();

    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(log.lines(), Lines{});
}

} // namespace
} // namespace brindlex
