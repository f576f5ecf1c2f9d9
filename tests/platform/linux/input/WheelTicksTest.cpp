#include "platform/linux/input/WheelTicks.h"

#include "mouse/ScrollMotion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace brindlex {
namespace {

std::vector<int> ticksOf(const std::vector<double>& pixels)
{
    WheelTicks wheel;
    std::vector<int> ticks;
    for (const auto step : pixels)
        ticks.push_back(wheel.post(step));
    return ticks;
}

TEST(WheelTicks, givesOneNotchForTenPixels)
{
    EXPECT_EQ(ticksOf({10, -10, 30, -25}), (std::vector{1, -1, 3, -3}));
}

TEST(WheelTicks, addsUpWhatIsLessThanANotch)
{
    EXPECT_EQ(ticksOf({2, 2, 2, 2, 2, 2, 2, 2, 2, 2}), (std::vector{0, 0, 1, 0, 0, 0, 0, 1, 0, 0}));
}

TEST(WheelTicks, losesAndInventsNothingOverAScroll)
{
    WheelTicks wheel;
    double pixels = 0;
    int ticks = 0;
    for (int step = 0; step < 1000; ++step) {
        const double distance = 1 + step % 17 * 0.75;
        pixels += distance;
        ticks += wheel.post(distance);
        EXPECT_LE(std::abs(pixels - ticks * WheelTicks::pixelsPerNotch), 5.0 + 1e-9) << step;
    }
}

TEST(WheelTicks, givesTheNotchOfAScrollThatWasRoundedDownOnItsWay)
{
    EXPECT_EQ(ticksOf({4, 3, 1, 1}), (std::vector{0, 1, 0, 0}));
}

TEST(WheelTicks, leavesNothingOverForTheOtherDirection)
{
    EXPECT_EQ(ticksOf({4, -4, 4, -4}), (std::vector{0, 0, 0, 0}));
    EXPECT_EQ(ticksOf({6, -6}), (std::vector{1, -1}));

    WheelTicks wheel;
    EXPECT_EQ(wheel.announce(40, 1), 1);
    EXPECT_EQ(wheel.announce(-20, 1.01), -1);
    EXPECT_EQ(wheel.finish(), -1);
}

TEST(WheelTicks, isNotMovedByNothingOrNonsense)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ticksOf({4, 0, 4}), (std::vector{0, 0, 1}));
    EXPECT_EQ(ticksOf({nan, infinity}), (std::vector{0, 0}));

    WheelTicks wheel;
    EXPECT_EQ(wheel.announce(0, 1), 0);
    EXPECT_EQ(wheel.announce(nan, 1), 0);
    EXPECT_EQ(wheel.announce(infinity, 1), 0);
    EXPECT_EQ(wheel.finish(), 0);
    EXPECT_EQ(wheel.post(10), 1);
}

TEST(WheelTicks, boundsWhatIsAskedForAtOnceAndForgetsTheRest)
{
    EXPECT_EQ(ticksOf({1e12, 10, 1, 1e308, 10}), (std::vector{1000, 1, 0, 1000, 1}));

    WheelTicks wheel;
    EXPECT_EQ(wheel.announce(1e308, 1), 1);
    EXPECT_EQ(wheel.post(1e308), 999);
    EXPECT_EQ(wheel.finish(), 0);
}

TEST(WheelTicks, turnsALoneNotchAtOnce)
{
    WheelTicks wheel;
    EXPECT_EQ(wheel.announce(10, 1), 1);
    EXPECT_EQ(wheel.post(9), 0);
    EXPECT_EQ(wheel.announce(10, 1.1), 1) << "still on the way of the first";
    EXPECT_EQ(wheel.finish(), 0);
}

TEST(WheelTicks, spreadsASpinOverWhatIsPosted)
{
    WheelTicks wheel;
    EXPECT_EQ(wheel.announce(10, 1), 1);
    EXPECT_EQ(wheel.announce(10, 1.05), 0);
    EXPECT_EQ(wheel.announce(10, 1.1), 0);
    EXPECT_EQ(wheel.post(9), 0);
    EXPECT_EQ(wheel.post(1), 1);
    EXPECT_EQ(wheel.post(4), 0);
    EXPECT_EQ(wheel.finish(), 1) << "what the small steps of the end have left out";
}

TEST(WheelTicks, givesNoMoreThanIsAnnounced)
{
    WheelTicks wheel;
    EXPECT_EQ(wheel.announce(20, 1), 1);
    EXPECT_EQ(wheel.post(35), 1);
    EXPECT_EQ(wheel.post(20), 0);
    EXPECT_EQ(wheel.finish(), 0);
}

TEST(WheelTicks, keepsAHalfForTheNextScroll)
{
    WheelTicks wheel;
    std::vector<int> ticks;
    for (int scroll = 0; scroll < 6; ++scroll) {
        ticks.push_back(wheel.announce(5, scroll * 60.0));
        EXPECT_EQ(wheel.finish(), 0);
    }
    EXPECT_EQ(ticks, (std::vector{1, 0, 1, 0, 1, 0}));
}

/// What arrives of ten turns of a notch each, smoothed and played by frames of the screen.
int arrivalsOfTenNotches(Seconds smoothDuration, double pixels, Seconds spacing)
{
    constexpr double frameRate = 60;
    WheelTicks wheel;
    ScrollMotion motion;
    int arrived = 0;
    bool isRunning = false;
    Seconds frame = 100;
    for (int notch = 0; notch < 10; ++notch) {
        arrived += wheel.announce(pixels, 100 + notch * spacing);
        motion.add(0, {.vertical = pixels});
        motion.lastTimestamp = isRunning ? motion.lastTimestamp : 0;
        isRunning = true;
        const Seconds next = notch == 9 ? 1000 : 100 + (notch + 1) * spacing;
        for (; isRunning && frame < next; frame += 1 / frameRate) {
            const auto advance = motion.advance(frame, smoothDuration);
            if (advance.step)
                arrived += wheel.post(std::round(advance.step->vertical));
            isRunning = !advance.isDrained;
            if (!isRunning)
                arrived += wheel.finish();
        }
        frame = std::max(frame, next);
    }
    return arrived;
}

TEST(WheelTicks, givesWhatTheHandAskedForWhateverIsSet)
{
    int wheels = 0;
    for (const auto duration : {0.05, 0.08, 0.1, 0.15, 0.18, 0.2, 0.25, 0.3, 0.35, 0.4})
        for (const auto speed : {0.5, 0.75, 1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 2.5, 3.0})
            for (int spacing = 20; spacing <= 2000; spacing += 30) {
                const int arrived = arrivalsOfTenNotches(duration, 10 * speed, spacing / 1000.0);
                EXPECT_LE(std::abs(arrived - 10 * speed), 1)
                    << duration << " s, " << speed << " times, every " << spacing << " ms";
                EXPECT_EQ(arrivalsOfTenNotches(duration, -10 * speed, spacing / 1000.0), -arrived);
                ++wheels;
            }
    EXPECT_EQ(wheels, 10 * 10 * 67);
}

} // namespace
} // namespace brindlex
