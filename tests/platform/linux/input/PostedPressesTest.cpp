#include "platform/linux/input/PostedPresses.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr PressLedger::Press keyPress{PressLedger::Kind::key, 38};
constexpr PressLedger::Press buttonPress{PressLedger::Kind::button, 38};

TEST(PostedPresses, sendAReleaseWhereItsPressWent)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.pressed(keyPress, true));
    EXPECT_TRUE(presses.released(keyPress, false));
    EXPECT_FALSE(presses.pressed(keyPress, false));
    EXPECT_FALSE(presses.released(keyPress, true));
}

TEST(PostedPresses, tellAKeyFromAButtonOfTheSameNumber)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.pressed(keyPress, true));
    EXPECT_FALSE(presses.pressed(buttonPress, false));
    EXPECT_TRUE(presses.released(keyPress, false));
    EXPECT_FALSE(presses.released(buttonPress, true));
}

TEST(PostedPresses, playWhatIsGivenBackWhileTheSwallowedPressWaits)
{
    PostedPresses presses;
    EXPECT_FALSE(presses.pressed(keyPress, false));
    EXPECT_TRUE(presses.pressed(keyPress, true));
    EXPECT_TRUE(presses.released(keyPress, true));
    EXPECT_FALSE(presses.released(keyPress, true));
}

TEST(PostedPresses, holdWhatWasPlayedWhileAnotherPressIsSwallowed)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.pressed(keyPress, true));
    EXPECT_FALSE(presses.pressed(keyPress, false));
    EXPECT_FALSE(presses.released(keyPress, true));
    EXPECT_TRUE(presses.released(keyPress, false));
}

TEST(PostedPresses, playAPressOnceUntilItsRelease)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.pressed(keyPress, true));
    EXPECT_FALSE(presses.pressed(keyPress, true));
    EXPECT_TRUE(presses.released(keyPress, true));
    EXPECT_FALSE(presses.released(keyPress, false));
    EXPECT_TRUE(presses.pressed(keyPress, true));
}

TEST(PostedPresses, leaveAReleaseOfWhatWasNeverPressedToTheTaps)
{
    PostedPresses presses;
    EXPECT_TRUE(presses.released(keyPress, true));
    EXPECT_FALSE(presses.released(keyPress, false));
}

} // namespace
} // namespace brindlex
