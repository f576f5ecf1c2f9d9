#include "mouse/MouseActionDispatcher.h"

#include "mouse/SpaceSwitcher.h"
#include "platform/simulated/SimulatedApplicationOpening.h"
#include "platform/simulated/SimulatedDisplayLink.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedProcessLaunching.h"
#include "platform/simulated/SimulatedSessionLock.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

Event keyEvent(EventType type, std::int64_t keyCode, std::uint64_t flags)
{
    return {type, {}, flags, {{EventField::keyboardEventKeycode, keyCode}}};
}

class MouseActionDispatcherTest : public testing::Test {
protected:
    RecordedLog log;
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedDisplayLink displayLink;
    SimulatedInput input;
    SimulatedApplicationOpening applications;
    SimulatedProcessLaunching processes;
    SpaceSwitcher spaces{input, displayLink, mainThread, clock};
    SimulatedSessionLock lock;
    MouseActionDispatcher dispatcher{input, applications, processes, spaces, lock};
};

TEST_F(MouseActionDispatcherTest, pressesAndReleasesTheKeyOfAnAction)
{
    dispatcher.perform(MouseAction::Plain::showDesktop);

    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] dispatch action: Show Desktop"}));
    EXPECT_EQ(input.delivered(),
        (std::vector{keyEvent(EventType::keyDown, 103, 0), keyEvent(EventType::keyUp, 103, 0)}));
}

TEST_F(MouseActionDispatcherTest, doesNothingAtALockedSession)
{
    lock.locked = true;

    dispatcher.perform(MouseAction::Plain::missionControl);
    dispatcher.perform(MouseAction::Plain::back);
    dispatcher.perform(MouseAction::RunShellCommand{"true"});

    EXPECT_EQ(log.lines(),
        (Lines{"INFO [mouse] no action while the session is locked: Mission Control",
            "INFO [mouse] no action while the session is locked: Back",
            "INFO [mouse] no action while the session is locked: Run Shell Command"}));
    EXPECT_TRUE(applications.opened.empty());
    EXPECT_EQ(input.delivered(), std::vector<Event>{});
    EXPECT_TRUE(processes.launches.empty());
}

TEST_F(MouseActionDispatcherTest, addsNoModifierThatIsHeld)
{
    input.heldFlags = eventFlag::shift | eventFlag::option;

    dispatcher.perform(MouseAction::Plain::back);
    dispatcher.perform(MouseAction::SendKeystroke{49, {}});

    EXPECT_EQ(input.delivered(),
        (std::vector{keyEvent(EventType::keyDown, 33, eventFlag::command),
            keyEvent(EventType::keyUp, 33, eventFlag::command), keyEvent(EventType::keyDown, 49, 0),
            keyEvent(EventType::keyUp, 49, 0)}));
}

TEST_F(MouseActionDispatcherTest, postsTheReleaseWhenThePressCannotBeMade)
{
    input.setCannotMake(
        [](const SyntheticEvent& event) { return event.type == EventType::keyDown; });

    dispatcher.perform(MouseAction::Plain::forward);

    EXPECT_EQ(input.delivered(), (std::vector{keyEvent(EventType::keyUp, 30, eventFlag::command)}));
}

TEST_F(MouseActionDispatcherTest, showsItsKeystrokesToTheTap)
{
    std::vector<Event> seen;
    constexpr auto mask = eventMask(EventType::keyDown);
    const auto tap = input.createTap(mask, {{mask, {}}}, [&](const Event& event) {
        seen.push_back(event);
        return EventVerdict::swallow;
    });
    tap->setEnabled(true);

    dispatcher.perform(MouseAction::SendKeystroke{9, ModifierSet::command});

    EXPECT_EQ(seen, (std::vector{keyEvent(EventType::keyDown, 9, eventFlag::command)}));
}

TEST_F(MouseActionDispatcherTest, opensMissionControl)
{
    dispatcher.perform(MouseAction::Plain::missionControl);

    EXPECT_EQ(applications.opened,
        (std::vector<std::filesystem::path>{"/System/Applications/Mission Control.app"}));
    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] dispatch action: Mission Control"}));
}

TEST_F(MouseActionDispatcherTest, runsACommandInTheShell)
{
    dispatcher.perform(MouseAction::RunShellCommand{"say 'a b'; exit 1"});

    EXPECT_EQ(processes.launches,
        (std::vector<SimulatedProcessLaunching::Launch>{
            {"/bin/zsh", {"-c", "say 'a b'; exit 1"}}}));
    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] dispatch action: Run Shell Command"}));
}

TEST_F(MouseActionDispatcherTest, saysWhyTheShellDidNotStart)
{
    processes.refusal = "No such file or directory";

    dispatcher.perform(MouseAction::RunShellCommand{""});

    EXPECT_EQ(log.lines(),
        (Lines{"INFO [mouse] dispatch action: Run Shell Command",
            "ERROR [mouse] runShell failed: No such file or directory"}));
}

TEST_F(MouseActionDispatcherTest, asksForTheSecondSpaceSwitchInVain)
{
    dispatcher.perform(MouseAction::Plain::switchSpaceLeft);
    mainThread.advance(0.2);
    dispatcher.perform(MouseAction::Plain::switchSpaceLeft);

    EXPECT_EQ(log.lines(),
        (Lines{"INFO [mouse] dispatch action: Switch Space Left",
            "INFO [mouse] SpaceSwitcher: start left",
            "INFO [mouse] dispatch action: Switch Space Left",
            "INFO [mouse] SpaceSwitcher: re-trigger ignored, animation in flight"}));
}

TEST_F(MouseActionDispatcherTest, switchesToTheRight)
{
    dispatcher.perform(MouseAction::Plain::switchSpaceRight);
    displayLink.frame(1);
    displayLink.frame(2);

    EXPECT_EQ(input.delivered().back().value(EventField{135}), 1061000000 + 2147483648);
}

} // namespace
} // namespace brindlex
