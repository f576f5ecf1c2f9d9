#include "mouse/ScrollSmoother.h"

#include "platform/simulated/SimulatedDisplayLink.h"
#include "platform/simulated/SimulatedMainThread.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace brindlex {
namespace {

using FrameSource = FrameDriver::Source;

class ScrollSmootherTest : public testing::Test {
protected:
    ScrollSmootherTest() { clock.advance(500); }

    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedDisplayLink displayLink;
    FrameDriver driver{displayLink, mainThread, clock};
    Seconds smoothDuration = 0.18;
    std::vector<std::pair<std::uint64_t, ScrollDistance>> posts;
    ScrollSmoother smoother{driver, [this] { return smoothDuration; },
        [this](
            std::uint64_t flags, ScrollDistance distance) { posts.emplace_back(flags, distance); },
        [this] { ++timesDrained; }};
    int timesDrained = 0;
};

TEST_F(ScrollSmootherTest, runsWithTheScreenUntilItIsDrained)
{
    smoother.add(eventFlag::option, {100, 0});
    EXPECT_EQ(driver.source(), FrameSource::display);
    EXPECT_EQ(displayLink.lastRate, std::nullopt);
    EXPECT_TRUE(posts.empty());

    int frames = 0;
    for (; displayLink.isRunning(); ++frames) {
        EXPECT_EQ(timesDrained, 0);
        displayLink.frame(500 + frames / 60.0);
    }

    EXPECT_EQ(timesDrained, 1);
    EXPECT_EQ(driver.source(), FrameSource::idle);
    EXPECT_EQ(posts.front().first, eventFlag::option);
    EXPECT_NEAR(posts.front().second.vertical, 8.843519709167577360, 1e-12);
    EXPECT_LT(smoother.motion().remainingY, 0.5);
    EXPECT_EQ(smoother.motion().lastTimestamp, 0);
}

TEST_F(ScrollSmootherTest, runsByATimerWithoutAScreen)
{
    displayLink.framesPerSecond.reset();
    smoother.add(0, {100, 0});
    EXPECT_EQ(driver.source(), FrameSource::timer);

    mainThread.advance(1.0 / 60);
    EXPECT_EQ(posts.size(), 1u);
    EXPECT_NEAR(posts[0].second.vertical, 8.843519709167577360, 1e-9);
    mainThread.advance(5);

    EXPECT_EQ(driver.source(), FrameSource::idle);
    EXPECT_EQ(mainThread.timers(), 0u);
}

TEST_F(ScrollSmootherTest, joinsTheMotionThatRuns)
{
    smoother.add(0, {100, 0});
    displayLink.frame(500);
    smoother.add(eventFlag::shift, {100, 0});
    EXPECT_EQ(smoother.motion().lastTimestamp, 500);

    displayLink.frame(500 + 1.0 / 60);

    EXPECT_EQ(posts.back().first, eventFlag::shift);
    EXPECT_NEAR(posts.back().second.vertical, 191.15648029083242264 * 0.08843519709167577, 1e-9);
}

TEST_F(ScrollSmootherTest, startsFromNothingAtAReversal)
{
    smoother.add(0, {100, 0});
    displayLink.frame(500);

    smoother.add(0, {-20, 0});

    EXPECT_EQ(smoother.motion().remainingY, -20);
}

TEST_F(ScrollSmootherTest, postsNothingForLessThanHalfAPixel)
{
    smoother.add(0, {0.4, 0});
    displayLink.frame(500);

    EXPECT_TRUE(posts.empty());
    EXPECT_EQ(driver.source(), FrameSource::idle);
}

TEST_F(ScrollSmootherTest, keepsTheTailForTheNextMotion)
{
    smoother.add(0, {0.4, 0});
    displayLink.frame(500);
    const auto tail = smoother.motion().remainingY;

    smoother.add(0, {10, 0});

    EXPECT_EQ(smoother.motion().remainingY, tail + 10);
    EXPECT_TRUE(displayLink.isRunning());
}

TEST_F(ScrollSmootherTest, readsTheDurationAtEachFrame)
{
    smoother.add(0, {100, 0});
    smoothDuration = 0;
    displayLink.frame(500);

    EXPECT_NEAR(posts.back().second.vertical, 99.99999422225148, 1e-12);
    EXPECT_FALSE(displayLink.isRunning());
}

TEST_F(ScrollSmootherTest, takesADurationBelowNothingForTheShortest)
{
    for (const Seconds duration : {-0.18, -1e308}) {
        smoothDuration = duration;
        smoother.add(0, {100, 0});
        displayLink.frame(500);

        EXPECT_NEAR(posts.back().second.vertical, 99.99999422225148, 1e-12) << duration;
        EXPECT_FALSE(displayLink.isRunning());
        smoother.reset();
    }
}

TEST_F(ScrollSmootherTest, goesOnOnceADurationWithoutEndIsOver)
{
    smoothDuration = 1e308;
    smoother.add(0, {100, 0});
    for (int frame = 0; frame < 100; ++frame)
        displayLink.frame(500 + frame / 60.0);
    EXPECT_TRUE(posts.empty());
    EXPECT_EQ(smoother.motion().remainingY, 100);

    smoothDuration = 0.001;
    displayLink.frame(502);

    EXPECT_EQ(posts.size(), 1u);
    EXPECT_NEAR(posts.back().second.vertical, 100, 1e-9);
    EXPECT_FALSE(displayLink.isRunning());
}

TEST_F(ScrollSmootherTest, keepsWhatRemainsWhenItIsStopped)
{
    smoother.add(eventFlag::option, {100, 5});
    displayLink.frame(500);
    const auto before = smoother.motion();

    smoother.stop();

    EXPECT_FALSE(displayLink.isRunning());
    EXPECT_EQ(smoother.motion(),
        (ScrollMotion{before.remainingY, before.remainingX, 0, eventFlag::option}));
    smoother.reset();
    EXPECT_EQ(smoother.motion(), ScrollMotion{});
}

} // namespace
} // namespace brindlex
