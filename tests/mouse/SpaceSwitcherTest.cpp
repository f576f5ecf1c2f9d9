#include "mouse/SpaceSwitcher.h"

#include "platform/simulated/SimulatedDisplayLink.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedPosting.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

using Events = std::vector<SyntheticEvent>;
using Lines = std::vector<std::string>;

const SyntheticEvent opening{EventType{29}, {}, {}, {}};

SyntheticEvent dock(DockSwipePhase phase, double progress)
{
    return dockSwipeEvent(phase, progress);
}

class SpaceSwitcherTest : public testing::Test {
protected:
    RecordedLog log;
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedDisplayLink displayLink;
    SimulatedPosting posting;
    SpaceSwitcher switcher{posting, displayLink, mainThread, clock};
};

TEST_F(SpaceSwitcherTest, beginsWithAGestureAndTheFirstDockEvent)
{
    switcher.start(true);

    EXPECT_EQ(posting.posted, (Events{opening, dock(DockSwipePhase::began, 0)}));
    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] SpaceSwitcher: start right"}));
    EXPECT_TRUE(switcher.isInFlight());
    EXPECT_TRUE(displayLink.isRunning());
}

TEST_F(SpaceSwitcherTest, countsItsTimeFromTheFirstFrame)
{
    switcher.start(true);
    posting.takePosted();

    displayLink.frame(500);
    displayLink.frame(500.11);

    EXPECT_EQ(posting.posted.size(), 2u);
    EXPECT_EQ(posting.posted[0], dock(DockSwipePhase::changed, 0));
    EXPECT_EQ(posting.posted[0].fields.value(EventField{135}), 0x80000000);
    EXPECT_EQ(posting.posted[1],
        dock(DockSwipePhase::changed, 1 - std::sqrt(1 - std::pow((500.11 - 500) / 0.22, 2))));
}

TEST_F(SpaceSwitcherTest, endsAtExactlyItsDuration)
{
    switcher.start(false);
    log.takeLines();
    posting.takePosted();

    displayLink.frame(0.22);
    displayLink.frame(0.44);

    EXPECT_EQ(posting.posted,
        (Events{dock(DockSwipePhase::changed, 0), dock(DockSwipePhase::ended, -1.25)}));
    EXPECT_EQ(posting.posted.back().fields.value(EventField{135}), 1061000000);
    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] SpaceSwitcher: finished"}));
    EXPECT_FALSE(switcher.isInFlight());
    EXPECT_FALSE(displayLink.isRunning());
}

TEST_F(SpaceSwitcherTest, isNotOverJustBeforeItsDuration)
{
    switcher.start(true);
    displayLink.frame(0.22);
    posting.takePosted();

    displayLink.frame(std::nextafter(0.44, 0.0));

    EXPECT_EQ(posting.posted.size(), 1u);
    EXPECT_EQ(posting.posted[0].fields.value(EventField{132}), 2);
    EXPECT_TRUE(switcher.isInFlight());
}

TEST_F(SpaceSwitcherTest, dropsAStartInFlightWhateverItsDirection)
{
    switcher.start(true);
    posting.takePosted();
    log.takeLines();

    switcher.start(false);
    switcher.start(true);

    EXPECT_EQ(posting.posted, Events{});
    EXPECT_EQ(log.lines(),
        (Lines{"INFO [mouse] SpaceSwitcher: re-trigger ignored, animation in flight",
            "INFO [mouse] SpaceSwitcher: re-trigger ignored, animation in flight"}));
}

TEST_F(SpaceSwitcherTest, startsAgainRightAfterItsEnd)
{
    switcher.start(true);
    displayLink.frame(1);
    displayLink.frame(2);
    posting.takePosted();
    log.takeLines();

    switcher.start(false);
    displayLink.frame(2);

    EXPECT_EQ(posting.posted,
        (Events{opening, dock(DockSwipePhase::began, 0), dock(DockSwipePhase::changed, 0)}));
    EXPECT_EQ(log.lines(), (Lines{"INFO [mouse] SpaceSwitcher: start left"}));
}

TEST_F(SpaceSwitcherTest, asksForSixtyFramesOrMore)
{
    for (const auto& [screen, rate] : {std::pair{30.0, 60.0}, {60.0, 60.0}, {120.0, 120.0}}) {
        displayLink.framesPerSecond = screen;
        switcher.start(true);
        EXPECT_EQ(displayLink.lastRate, rate);
        displayLink.frame(1);
        displayLink.frame(2);
    }
}

TEST_F(SpaceSwitcherTest, runsByATimerWithoutAScreen)
{
    displayLink.framesPerSecond.reset();
    clock.advance(100);
    switcher.start(true);
    posting.takePosted();

    mainThread.advance(1);

    // Frames at 1/60 s and each 1/60 s after: 0.22 s have passed at the 15th.
    EXPECT_EQ(posting.posted.size(), 15u);
    EXPECT_EQ(posting.posted.front(), dock(DockSwipePhase::changed, 0));
    EXPECT_EQ(posting.posted.back(), dock(DockSwipePhase::ended, 1.25));
    EXPECT_EQ(mainThread.timers(), 0u);
    EXPECT_FALSE(switcher.isInFlight());
}

TEST_F(SpaceSwitcherTest, goesOnWhenEventsCannotBeMade)
{
    posting.cannotMake = [](const SyntheticEvent&) { return true; };

    switcher.start(true);
    displayLink.frame(1);
    displayLink.frame(2);

    EXPECT_EQ(log.lines(),
        (Lines{"INFO [mouse] SpaceSwitcher: start right",
            "WARN [mouse] SpaceSwitcher: failed to construct CGEvent",
            "WARN [mouse] SpaceSwitcher: failed to construct CGEvent",
            "WARN [mouse] SpaceSwitcher: failed to construct CGEvent",
            "INFO [mouse] SpaceSwitcher: finished"}));
    EXPECT_FALSE(switcher.isInFlight());
}

TEST(spaceSwitchProgress, isACircleSlowAtFirst)
{
    EXPECT_EQ(spaceSwitchProgress(0), 0);
    EXPECT_EQ(spaceSwitchProgress(1), 1);
    EXPECT_EQ(spaceSwitchProgress(-1), 0);
    EXPECT_EQ(spaceSwitchProgress(2), 1);
    EXPECT_NEAR(spaceSwitchProgress(0.6), 0.2, 1e-12);
    EXPECT_NEAR(spaceSwitchProgress(0.8), 0.4, 1e-12);
    EXPECT_NEAR(spaceSwitchProgress(0.5), 0.1339745962155613532, 1e-12);
}

} // namespace
} // namespace brindlex
