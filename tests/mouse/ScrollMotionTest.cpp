#include "mouse/ScrollMotion.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brindlex {
namespace {

using Frame = ScrollMotion::Frame;

TEST(ScrollMotion, addsUpAndKeepsTheNewestFlags)
{
    ScrollMotion motion;
    motion.add(eventFlag::shift, 3, 10);
    motion.add(eventFlag::option, 4, 20);

    EXPECT_EQ(motion, (ScrollMotion{7, 30, 0, eventFlag::option}));
}

TEST(ScrollMotion, dropsTheOldMotionAtAReversal)
{
    ScrollMotion vertical{8, 30, 0, 0};
    vertical.add(0, 1, -10);
    EXPECT_EQ(vertical, (ScrollMotion{1, -10, 0, 0}));

    ScrollMotion horizontal{8, 30, 0, 0};
    horizontal.add(0, -1, 10);
    EXPECT_EQ(horizontal, (ScrollMotion{-1, 10, 0, 0}));
}

TEST(ScrollMotion, needsHalfAPixelOnBothSidesForAReversal)
{
    ScrollMotion exactly{0, 0.5, 0, 0};
    exactly.add(0, 0, -0.5);
    EXPECT_EQ(exactly.remainingY, -0.5);

    ScrollMotion smallRemainder{0, 0.25, 0, 0};
    smallRemainder.add(0, 0, -10);
    EXPECT_EQ(smallRemainder.remainingY, -9.75);

    ScrollMotion smallChange{0, 10, 0, 0};
    smallChange.add(0, 0, -0.25);
    EXPECT_EQ(smallChange.remainingY, 9.75);
}

TEST(ScrollMotion, isNotReversedByANegativeZero)
{
    ScrollMotion motion{0, 30, 0, 0};
    motion.add(0, -0.0, -0.0);
    EXPECT_EQ(motion.remainingY, 30);

    ScrollMotion rested{-0.0, -0.0, 0, 0};
    rested.add(0, 10, 10);
    EXPECT_EQ(rested, (ScrollMotion{10, 10, 0, 0}));
}

TEST(ScrollMotion, takesAFirstFrameForOneSixtieth)
{
    ScrollMotion motion{0, 100, 0, 0};

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
    ScrollMotion motion{100, 0, 0.5, 0};

    const auto frame = motion.advance(0.51, 0.18);

    EXPECT_NEAR(frame.step->horizontal, 5.404053109323453711, 1e-12);
    EXPECT_NEAR(motion.remainingX, 94.595946890676546289, 1e-12);
    EXPECT_EQ(motion.remainingY, 0);
}

TEST(ScrollMotion, goesAlmostAllTheWayAtOnceWithoutADuration)
{
    for (const double duration : {0.0, 0.001, -5.0}) {
        ScrollMotion motion{0, 100, 0, 0};
        const auto frame = motion.advance(500, duration);
        EXPECT_NEAR(frame.step->vertical, 99.99999422225148, 1e-12);
        EXPECT_TRUE(frame.isDrained);
        EXPECT_NEAR(motion.remainingY, 0.00000577774851941914, 1e-12);
    }
}

TEST(ScrollMotion, neverPostsARemainderBelowHalfAPixel)
{
    ScrollMotion motion{0, 0.4, 0, 0};

    EXPECT_EQ(motion.advance(500, 0.18), (Frame{{}, true}));
    EXPECT_LT(motion.remainingY, 0.4);
    EXPECT_GT(motion.remainingY, 0.36);
}

TEST(ScrollMotion, dropsAStepBelowHalfAPixel)
{
    ScrollMotion motion{0, 5, 0, 0};

    EXPECT_EQ(motion.advance(500, 0.18), (Frame{{}, false}));
    EXPECT_NEAR(motion.remainingY, 5 * 0.9115648029083242264, 1e-12);
}

TEST(ScrollMotion, postsBothAxesWhenOneIsLargeEnough)
{
    ScrollMotion motion{1, 100, 0, 0};

    const auto frame = motion.advance(500, 0.18);

    EXPECT_NEAR(frame.step->horizontal, 0.0884351970916757736, 1e-12);
}

TEST(ScrollMotion, isDrainedWhenLittleRemainsOnBothAxes)
{
    ScrollMotion motion{0, 0.4999, 0, 0};
    EXPECT_TRUE(motion.advance(500, 1e9).isDrained);
    ScrollMotion exactly{0, 0.5, 0, 0};
    EXPECT_FALSE(exactly.advance(500, 1e18).isDrained);
    ScrollMotion other{-20, 0.1, 0, 0};
    EXPECT_FALSE(other.advance(500, 0.18).isDrained);
}

TEST(ScrollMotion, losesLessThanAPixelPerFrameOfItsTail)
{
    ScrollMotion motion{0, 300, 0, 0};
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
