#include "mouse/ScrollMotion.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brindlex {
namespace {

using Frame = ScrollMotion::Frame;

TEST(ScrollMotion, addsUpAndKeepsTheNewestFlags)
{
    ScrollMotion motion;
    motion.add(eventFlag::shift, {10, 3});
    motion.add(eventFlag::option, {20, 4});

    EXPECT_EQ(motion,
        (ScrollMotion{.remainingY = 30, .remainingX = 7, .pendingFlags = eventFlag::option}));
}

TEST(ScrollMotion, dropsTheOldMotionAtAReversal)
{
    ScrollMotion vertical{.remainingY = 30, .remainingX = 8};
    vertical.add(0, {-10, 1});
    EXPECT_EQ(vertical, (ScrollMotion{.remainingY = -10, .remainingX = 1}));

    ScrollMotion horizontal{.remainingY = 30, .remainingX = 8};
    horizontal.add(0, {10, -1});
    EXPECT_EQ(horizontal, (ScrollMotion{.remainingY = 10, .remainingX = -1}));
}

TEST(ScrollMotion, needsHalfAPixelOnBothSidesForAReversal)
{
    ScrollMotion exactly{.remainingY = 0.5};
    exactly.add(0, {-0.5, 0});
    EXPECT_EQ(exactly.remainingY, -0.5);

    ScrollMotion smallRemainder{.remainingY = 0.25};
    smallRemainder.add(0, {-10, 0});
    EXPECT_EQ(smallRemainder.remainingY, -9.75);

    ScrollMotion smallChange{.remainingY = 10};
    smallChange.add(0, {-0.25, 0});
    EXPECT_EQ(smallChange.remainingY, 9.75);
}

TEST(ScrollMotion, isNotReversedByANegativeZero)
{
    ScrollMotion motion{.remainingY = 30};
    motion.add(0, {-0.0, -0.0});
    EXPECT_EQ(motion.remainingY, 30);

    ScrollMotion rested{.remainingY = -0.0, .remainingX = -0.0};
    rested.add(0, {10, 10});
    EXPECT_EQ(rested, (ScrollMotion{.remainingY = 10, .remainingX = 10}));
}

TEST(ScrollMotion, takesAFirstFrameForOneSixtieth)
{
    ScrollMotion motion{.remainingY = 100};

    const auto frame = motion.advance(500, 0.18);

    // 100 (1 - exp(-1 / 60 / 0.18))
    ASSERT_TRUE(frame.step);
    EXPECT_NEAR(frame.step->vertical, 8.843519709167577360, 1e-12);
    EXPECT_EQ(frame.step->horizontal, 0);
    EXPECT_FALSE(frame.isDrained);
    EXPECT_NEAR(motion.remainingY, 91.15648029083242264, 1e-12);
    EXPECT_EQ(motion.lastTimestamp, 500);
}

TEST(ScrollMotion, takesALaterFrameForItsTime)
{
    ScrollMotion motion{.remainingX = 100, .lastTimestamp = 0.5};

    const auto frame = motion.advance(0.51, 0.18);

    EXPECT_NEAR(frame.step->horizontal, 5.404053109323453711, 1e-12);
    EXPECT_NEAR(motion.remainingX, 94.595946890676546289, 1e-12);
    EXPECT_EQ(motion.remainingY, 0);
}

TEST(ScrollMotion, goesAlmostAllTheWayAtOnceWithoutADuration)
{
    for (const double duration : {0.0, 0.001, -5.0}) {
        ScrollMotion motion{.remainingY = 100};
        const auto frame = motion.advance(500, duration);
        EXPECT_NEAR(frame.step->vertical, 99.99999422225148, 1e-12);
        EXPECT_TRUE(frame.isDrained);
        EXPECT_NEAR(motion.remainingY, 0.00000577774851941914, 1e-12);
    }
}

TEST(ScrollMotion, neverPostsARemainderBelowHalfAPixel)
{
    ScrollMotion motion{.remainingY = 0.4};

    EXPECT_EQ(motion.advance(500, 0.18), (Frame{{}, true}));
    EXPECT_LT(motion.remainingY, 0.4);
    EXPECT_GT(motion.remainingY, 0.36);
}

TEST(ScrollMotion, dropsAStepBelowHalfAPixel)
{
    ScrollMotion motion{.remainingY = 5};

    EXPECT_EQ(motion.advance(500, 0.18), (Frame{{}, false}));
    EXPECT_NEAR(motion.remainingY, 5 * 0.9115648029083242264, 1e-12);
}

TEST(ScrollMotion, postsBothAxesWhenOneIsLargeEnough)
{
    ScrollMotion motion{.remainingY = 100, .remainingX = 1};

    const auto frame = motion.advance(500, 0.18);

    EXPECT_NEAR(frame.step->horizontal, 0.0884351970916757736, 1e-12);
}

TEST(ScrollMotion, isDrainedWhenLittleRemainsOnBothAxes)
{
    ScrollMotion motion{.remainingY = 0.4999};
    EXPECT_TRUE(motion.advance(500, 1e9).isDrained);
    ScrollMotion exactly{.remainingY = 0.5};
    EXPECT_FALSE(exactly.advance(500, 1e18).isDrained);
    ScrollMotion other{.remainingY = 0.1, .remainingX = -20};
    EXPECT_FALSE(other.advance(500, 0.18).isDrained);
}

TEST(ScrollMotion, losesLessThanAPixelPerFrameOfItsTail)
{
    ScrollMotion motion{.remainingY = 300};
    double posted = 0;
    int frames = 0;
    for (bool isDrained = false; !isDrained; ++frames) {
        const auto frame = motion.advance(500 + (frames + 1) / 60.0, 0.18);
        posted += frame.step ? frame.step->vertical : 0;
        isDrained = frame.isDrained;
    }
    EXPECT_GT(posted, 294);
    EXPECT_LT(posted, 300);
    EXPECT_GT(frames, 60);
    EXPECT_LT(frames, 80);
}

} // namespace
} // namespace brindlex
