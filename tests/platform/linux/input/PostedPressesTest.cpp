#include "platform/linux/input/PostedPresses.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr PressLedger::Press key{PressLedger::Kind::key, 38};
constexpr PressLedger::Press button{PressLedger::Kind::button, 38};

TEST(PostedPresses, sendAReleaseWhereItsPressWent)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.pressed(key, true));
    EXPECT_TRUE(presses.released(key, false));
    EXPECT_FALSE(presses.pressed(key, false));
    EXPECT_FALSE(presses.released(key, true));
}

TEST(PostedPresses, tellAKeyFromAButtonOfTheSameNumber)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.pressed(key, true));
    EXPECT_FALSE(presses.pressed(button, false));
    EXPECT_TRUE(presses.released(key, false));
    EXPECT_FALSE(presses.released(button, true));
}

TEST(PostedPresses, playWhatIsGivenBackWhileTheSwallowedPressWaits)
{
    PostedPresses presses;
    EXPECT_FALSE(presses.pressed(key, false));
    EXPECT_TRUE(presses.pressed(key, true));
    EXPECT_TRUE(presses.released(key, true));
    EXPECT_FALSE(presses.released(key, true));
}

TEST(PostedPresses, holdWhatWasPlayedWhileAnotherPressIsSwallowed)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.pressed(key, true));
    EXPECT_FALSE(presses.pressed(key, false));
    EXPECT_FALSE(presses.released(key, true));
    EXPECT_TRUE(presses.released(key, false));
}

TEST(PostedPresses, playAPressOnceUntilItsRelease)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.pressed(key, true));
    EXPECT_FALSE(presses.pressed(key, true));
    EXPECT_TRUE(presses.released(key, true));
    EXPECT_FALSE(presses.released(key, false));
    EXPECT_TRUE(presses.pressed(key, true));
}

TEST(PostedPresses, leaveAReleaseOfWhatWasNeverPressedToTheTaps)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.released(key, true));
    EXPECT_FALSE(presses.released(key, false));
}

} // namespace
} // namespace brindlex
