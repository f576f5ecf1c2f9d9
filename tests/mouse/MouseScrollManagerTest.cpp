#include "mouse/MouseScrollManager.h"

#include "mouse/MouseSession.h"
#include "platform/simulated/RecordedInput.h"
#include "platform/simulated/SimulatedMouse.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;
using Masks = std::vector<EventMask>;

class MouseScrollManagerTest : public testing::Test, protected MouseSession {
protected:
    /// The pixels that have reached the applications, vertical first.
    std::vector<std::pair<std::int64_t, std::int64_t>> pixels()
    {
        std::vector<std::pair<std::int64_t, std::int64_t>> result;
        for (const auto& event : input.takeDelivered())
            result.emplace_back(event.value(EventField::scrollWheelEventPointDeltaAxis1),
                event.value(EventField::scrollWheelEventPointDeltaAxis2));
        return result;
    }
    using Pixels = std::vector<std::pair<std::int64_t, std::int64_t>>;
};

TEST_F(MouseScrollManagerTest, takesTheWheelWhateverIsSet)
{
    scrolling.start();
    scrolling.start();

    EXPECT_EQ(input.tapMasks(), Masks{mouseScrollEventMask});
    EXPECT_EQ(input.tapsMade(), 1u);
    EXPECT_EQ(mouse.scroll(1), EventVerdict::swallow);
    EXPECT_EQ(mouse.scroll(-2, 1), EventVerdict::swallow);
    EXPECT_EQ(pixels(), (Pixels{{10, 0}, {-20, 10}}));
}

TEST(MouseScrollManager, takesTheWheelFromTheDevicesWhenANotchIsToBeAnother)
{
    MouseSession session({}, SimulatedInput::TapPlace::devices);
    session.scrolling.start();
    EXPECT_EQ(session.mouse.scroll(1), EventVerdict::pass);

    session.edit([](MouseConfig& value) { value.scroll.speedMultiplier = 2; });
    EXPECT_EQ(session.mouse.scroll(1), EventVerdict::swallow);

    session.edit([](MouseConfig& value) { value.scroll.speedMultiplier = 1; });
    EXPECT_EQ(session.mouse.scroll(1), EventVerdict::pass);
    EXPECT_EQ(session.input.tapsMade(), 1u);
}

TEST(MouseScrollManager, saysOnceWhichNumbersAreUnusual)
{
    MouseConfig config;
    config.scroll.smoothDuration = -1;
    MouseSession session(config);
    const std::string duration
        = "WARN [mouse] MouseScroll: smoothDuration is -1.0, usual are 0.05 to 0.4";
    EXPECT_EQ(session.log.takeLines(), Lines{duration});

    session.edit([](MouseConfig& value) { value.scroll.invertVertical = true; });
    EXPECT_EQ(session.log.takeLines(), Lines{});
    session.edit([](MouseConfig& value) { value.scroll.speedMultiplier = 0; });
    EXPECT_EQ(session.log.takeLines(),
        (Lines{
            duration, "WARN [mouse] MouseScroll: speedMultiplier is 0.0, usual are 0.5 to 3.0"}));
    session.edit([](MouseConfig& value) { value.scroll = {}; });
    EXPECT_EQ(session.log.takeLines(), Lines{});
}

TEST_F(MouseScrollManagerTest, keepsTheFlagsOfTheNotch)
{
    scrolling.start();
    input.heldFlags = eventFlag::shift | eventFlag::capsLock;
    mouse.scroll(3);

    const Event expected{EventType::scrollWheel, {}, eventFlag::shift | eventFlag::capsLock,
        {{EventField{88}, 1}, {EventField{96}, 0}, {EventField{97}, 30},
            {EventField{42}, 0x4D4F53455343524C}}};
    EXPECT_EQ(input.delivered(), std::vector{expected});
}

TEST_F(MouseScrollManagerTest, leavesATrackpadAlone)
{
    scrolling.start();
    edit([](MouseConfig& value) { value.scroll.smoothEnabled = true; });

    EXPECT_EQ(mouse.scrollContinuously(17), EventVerdict::pass);

    EXPECT_FALSE(displayLink.isRunning());
    EXPECT_EQ(pixels(), (Pixels{{17, 0}}));
}

TEST_F(MouseScrollManagerTest, spreadsANotchOverFramesWhenItIsSmooth)
{
    scrolling.start();
    edit([](MouseConfig& value) { value.scroll.smoothEnabled = true; });

    EXPECT_EQ(mouse.scroll(10), EventVerdict::swallow);
    EXPECT_EQ(pixels(), Pixels{});
    displayLink.frame(500);
    EXPECT_EQ(pixels(), (Pixels{{9, 0}}));

    edit([](MouseConfig& value) { value.scroll.smoothEnabled = false; });
    EXPECT_FALSE(displayLink.isRunning());
}

TEST_F(MouseScrollManagerTest, letsAMotionDrainWhenOnlySmoothingIsSwitchedOff)
{
    scrolling.start();
    edit([](MouseConfig& value) {
        value.scroll.smoothEnabled = value.scroll.invertVertical = true;
    });
    mouse.scroll(10);

    edit([](MouseConfig& value) { value.scroll.smoothEnabled = false; });
    EXPECT_TRUE(displayLink.isRunning());
    mouse.scroll(1);
    displayLink.frame(500);

    EXPECT_EQ(pixels(), (Pixels{{-10, 0}, {-9, 0}}));
}

TEST_F(MouseScrollManagerTest, isEndedOnlyByAChangeToAllOff)
{
    scrolling.start();
    edit([](MouseConfig& value) { value.scroll.speedMultiplier = 2; });
    EXPECT_EQ(input.tapMasks(), Masks{mouseScrollEventMask});
    edit([](MouseConfig& value) { value.scroll.invertHorizontal = true; });
    edit([](MouseConfig& value) { value.scroll.invertHorizontal = false; });
    EXPECT_EQ(input.tapMasks(), Masks{});
    EXPECT_EQ(mouse.scroll(1), EventVerdict::pass);
    edit([](MouseConfig& value) { value.scroll.invertVertical = true; });
    EXPECT_EQ(input.tapMasks(), Masks{mouseScrollEventMask});
}

TEST_F(MouseScrollManagerTest, forgetsItsMotionWhenItIsTornDown)
{
    scrolling.start();
    edit([](MouseConfig& value) {
        value.scroll.smoothEnabled = true;
        value.scroll.acceleration = 1;
    });
    mouse.scroll(10);
    displayLink.frame(500);
    input.takeDelivered();

    scrolling.tearDown();
    EXPECT_FALSE(displayLink.isRunning());
    scrolling.start();
    mouse.scroll(-1);
    displayLink.frame(501);

    // A first notch of one line again: 10 (1 - exp(-1 / 60 / 0.18)), rounded.
    EXPECT_EQ(pixels(), (Pixels{{-1, 0}}));
}

TEST_F(MouseScrollManagerTest, acceleratesNotchesByTheContinuousClock)
{
    edit([](MouseConfig& value) { value.scroll.acceleration = 1; });
    scrolling.start();
    mouse.scroll(-1);
    clock.setNow(Date{0});
    clock.advance(0.02);
    mouse.scroll(-1);

    EXPECT_EQ(pixels(), (Pixels{{-10, 0}, {-16, 0}}));
}

TEST_F(MouseScrollManagerTest, leavesTheWheelToADisabledApplication)
{
    edit([](MouseConfig& value) {
        value.scroll.disabledApps = {{"com.example.Game", "Game", {}}};
    });
    scrolling.start();
    RunningApplication game;
    game.processIdentifier = ProcessIdentity{7};
    applications.bringToFront(game);
    EXPECT_EQ(mouse.scroll(1), EventVerdict::swallow);

    applications.quit(ProcessIdentity{7});
    EXPECT_EQ(mouse.scroll(1), EventVerdict::swallow);

    game.bundleIdentifier = "com.example.Game";
    applications.bringToFront(game);
    EXPECT_EQ(mouse.scroll(1), EventVerdict::pass);
}

TEST(MouseScrollManager, announcesWhatTheHandAskedFor)
{
    SimulatedInput input;
    SimulatedMouse mouse(input);
    RecordedInput recorded(input, input);
    MouseConfig config;
    config.scroll.speedMultiplier = 1.25;
    MouseSession session(recorded, recorded, config);
    session.scrolling.start();
    using Announced = RecordedInput::AnnouncedScroll;

    mouse.scroll(-1);
    auto posted = recorded.takePosted();
    ASSERT_EQ(posted.size(), 3u);
    EXPECT_EQ(posted[0], RecordedInput::Posted(Announced{0, {-12.5, 0}}));
    EXPECT_TRUE(std::holds_alternative<SyntheticEvent>(posted[1]));
    EXPECT_EQ(posted[2], RecordedInput::Posted(RecordedInput::FinishedScroll{}));

    session.edit([](MouseConfig& value) {
        value.scroll.smoothEnabled = true;
        value.scroll.smoothDuration = 0.4;
    });
    mouse.scroll(-1);
    for (int frame = 0; session.displayLink.isRunning(); ++frame)
        session.displayLink.frame(500 + frame / 60.0);
    posted = recorded.takePosted();
    EXPECT_EQ(posted.front(), RecordedInput::Posted(Announced{0, {-12.5, 0}}));
    EXPECT_EQ(posted.back(), RecordedInput::Posted(RecordedInput::FinishedScroll{}));

    mouse.scroll(-1);
    recorded.takePosted();
    session.scrolling.tearDown();
    EXPECT_EQ(
        recorded.takePosted(), std::vector<RecordedInput::Posted>{RecordedInput::FinishedScroll{}});
}

TEST_F(MouseScrollManagerTest, dropsANotchWhoseEventCannotBeMade)
{
    scrolling.start();
    input.setCannotMake([](const SyntheticEvent&) { return true; });

    EXPECT_EQ(mouse.scroll(1), EventVerdict::swallow);

    EXPECT_EQ(pixels(), Pixels{});
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(MouseScrollManagerTest, waitsForPermission)
{
    permissions.canListen = false;
    scrolling.start();
    EXPECT_EQ(log.takeLines(),
        (Lines{"WARN [mouse] MouseScroll: missing Accessibility or Input Monitoring permission; "
               "not starting"}));

    EXPECT_EQ(input.tapsMade(), 0u);
    activation.becomeActive();
    EXPECT_EQ(log.takeLines().size(), 1u);

    permissions.canListen = true;
    mainThread.advance(2);

    EXPECT_EQ(input.tapMasks(), Masks{mouseScrollEventMask});
    EXPECT_EQ(mainThread.timers(), 0u);
}

TEST_F(MouseScrollManagerTest, canGoWhileAnEventIsOnItsWay)
{
    auto second = std::make_unique<MouseScrollManager>(config, environment,
        MouseScrollManager::Abilities{input, applications, displayLink, clock});
    tap.subscribe(mouseScrollEventMask, [&](const Event&) {
        second.reset();
        return EventVerdict::pass;
    });
    second->start();

    EXPECT_EQ(mouse.scroll(3), EventVerdict::pass);
    EXPECT_EQ(second, nullptr);
}

} // namespace
} // namespace brindlex
