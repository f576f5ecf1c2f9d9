#include "mouse/FrameDriver.h"

#include "platform/simulated/SimulatedDisplayLink.h"
#include "platform/simulated/SimulatedMainThread.h"

#include <gtest/gtest.h>

#include <vector>

namespace brindlex {
namespace {

class FrameDriverTest : public testing::Test {
protected:
    FrameDriver::FrameHandler noting()
    {
        return [this](Seconds now) { times.push_back(now); };
    }

    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedDisplayLink displayLink;
    FrameDriver driver{displayLink, mainThread, clock};
    std::vector<Seconds> times;
};

TEST_F(FrameDriverTest, givesTheTimesOfTheScreen)
{
    driver.start(noting());
    displayLink.frame(7);
    displayLink.frame(8);
    mainThread.advance(1);

    EXPECT_EQ(times, (std::vector<Seconds>{7, 8}));
}

TEST_F(FrameDriverTest, givesTheTimesOfTheClockWithoutAScreen)
{
    displayLink.framesPerSecond.reset();
    driver.start(noting());
    mainThread.advance(0.04);

    ASSERT_EQ(times.size(), 2u);
    EXPECT_NEAR(times[0], 1.0 / 60, 1e-9);
    EXPECT_NEAR(times[1], 2.0 / 60, 1e-9);
}

TEST_F(FrameDriverTest, asksTheScreenForItsOwnRateOrForTheLowest)
{
    driver.start(noting());
    EXPECT_EQ(displayLink.lastRate, std::nullopt);
    driver.stop();
    displayLink.framesPerSecond = 59.94;
    driver.start(noting(), 60.0F);
    EXPECT_EQ(displayLink.lastRate, 60);
    driver.stop();
    displayLink.framesPerSecond = 143.9;
    driver.start(noting(), 60.0F);
    EXPECT_EQ(displayLink.lastRate, static_cast<double>(143.9F));
}

TEST_F(FrameDriverTest, isStartedOnce)
{
    driver.start(noting());
    driver.start([](Seconds) { FAIL(); });
    displayLink.frame(7);

    EXPECT_EQ(times.size(), 1u);
}

TEST_F(FrameDriverTest, canBeStoppedAndStartedInAFrame)
{
    driver.start([this](Seconds) {
        driver.stop();
        driver.start(noting());
    });
    displayLink.frame(7);
    displayLink.frame(8);

    EXPECT_EQ(times, std::vector<Seconds>{8});
    driver.stop();
    EXPECT_EQ(driver.source(), FrameDriver::Source::idle);
    EXPECT_FALSE(displayLink.isRunning());
}

} // namespace
} // namespace brindlex
