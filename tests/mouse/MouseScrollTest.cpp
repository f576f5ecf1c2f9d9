#include "mouse/MouseScroll.h"

#include "mouse/MouseEventTag.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brindlex {
namespace {

using Distance = std::optional<ScrollDistance>;

Event notch(std::int64_t vertical, std::int64_t horizontal = 0, std::uint64_t flags = 0)
{
    return {EventType::scrollWheel, {}, flags,
        {{EventField::scrollWheelEventDeltaAxis1, vertical},
            {EventField::scrollWheelEventDeltaAxis2, horizontal}}};
}

class MouseScrollTest : public testing::Test {
protected:
    Distance scroll(const Event& event, const std::optional<std::string>& frontmost = {})
    {
        return reduceMouseScroll(event, calculator, config, frontmost, 500);
    }

    MouseScrollConfig config;
    MouseScrollAccelerationCalculator calculator;
};

TEST_F(MouseScrollTest, isTenPixelsForALine)
{
    EXPECT_EQ(scroll(notch(1)), (ScrollDistance{10, 0}));
    EXPECT_EQ(scroll(notch(-3, 2)), (ScrollDistance{-30, 20}));
    EXPECT_EQ(scroll(notch(0)), (ScrollDistance{0, 0}));
}

TEST_F(MouseScrollTest, isTenPixelsForAFirstNotchWithFullAcceleration)
{
    config.acceleration = 1.0;

    EXPECT_EQ(scroll(notch(1)), (ScrollDistance{10, 0}));
}

TEST_F(MouseScrollTest, multipliesBySpeedAndAcceleration)
{
    config.speedMultiplier = 2.5;
    config.acceleration = 1.0;

    EXPECT_NEAR(scroll(notch(-3))->vertical, -30 * 2.5 * 1.590623820562573131, 1e-10);
}

TEST_F(MouseScrollTest, turnsRoundWithASpeedBelowNothingAndStandsWithNone)
{
    config.speedMultiplier = -2;
    EXPECT_EQ(scroll(notch(-3, 2)), (ScrollDistance{60, -40}));
    config.speedMultiplier = 0;
    EXPECT_EQ(scroll(notch(3, 2)), (ScrollDistance{0, 0}));
}

TEST_F(MouseScrollTest, goesSidewaysWhileShiftIsHeld)
{
    EXPECT_EQ(scroll(notch(3, 0, eventFlag::shift)), (ScrollDistance{0, 30}));
    EXPECT_EQ(scroll(notch(1, 0, eventFlag::shift)), (ScrollDistance{0, 10}));
    EXPECT_EQ(scroll(notch(-1, 0, eventFlag::shift)), (ScrollDistance{0, -10}));
    EXPECT_EQ(scroll(notch(3, 1, eventFlag::shift)), (ScrollDistance{30, 10}));
    EXPECT_EQ(scroll(notch(3, -1, eventFlag::shift)), (ScrollDistance{30, -10}));
    EXPECT_EQ(scroll(notch(0, 2, eventFlag::shift)), (ScrollDistance{0, 20}));
    EXPECT_EQ(scroll(notch(3, 0, eventFlag::option)), (ScrollDistance{30, 0}));
}

TEST_F(MouseScrollTest, invertsWhatItHasTurnedSideways)
{
    config.invertVertical = true;
    EXPECT_EQ(scroll(notch(3, 0, eventFlag::shift)), (ScrollDistance{0, 30}));
    EXPECT_EQ(scroll(notch(3, 2)), (ScrollDistance{-30, 20}));

    config.invertVertical = false;
    config.invertHorizontal = true;
    EXPECT_EQ(scroll(notch(3, 0, eventFlag::shift)), (ScrollDistance{0, -30}));
    EXPECT_EQ(scroll(notch(3, 2)), (ScrollDistance{30, -20}));
}

TEST_F(MouseScrollTest, leavesContinuousEventsAlone)
{
    auto event = notch(3);
    event.fields.set(EventField::scrollWheelEventIsContinuous, 1);

    EXPECT_EQ(scroll(event), std::nullopt);
    EXPECT_FALSE(isWheelNotch(event));
}

TEST_F(MouseScrollTest, leavesItsOwnEventsAlone)
{
    auto event = notch(3);
    event.fields.set(EventField::eventSourceUserData, 0x4D4F53455343524C);
    EXPECT_EQ(scroll(event), std::nullopt);

    event.fields.set(EventField::eventSourceUserData, mouseEventTag::replay);
    EXPECT_NE(scroll(event), std::nullopt);
}

TEST_F(MouseScrollTest, leavesEventsOfOtherTypesAlone)
{
    EXPECT_EQ(scroll({EventType::otherMouseDown, {}, 0, {}}), std::nullopt);
}

TEST_F(MouseScrollTest, leavesTheWheelToADisabledApplication)
{
    config.acceleration = 1.0;
    config.disabledApps = {{"com.example.Other", "Other", {}}, {"com.example.Game", "Game", {}}};

    EXPECT_EQ(scroll(notch(3), "com.example.Game"), std::nullopt);
    EXPECT_EQ(calculator, MouseScrollAccelerationCalculator{});
    EXPECT_NE(scroll(notch(3), "com.example.game"), std::nullopt);
    EXPECT_NE(calculator, MouseScrollAccelerationCalculator{});
    EXPECT_NE(scroll(notch(3)), std::nullopt);
}

TEST(scrollEvent, carriesWholePixelsAndTheTag)
{
    EXPECT_EQ(scrollEvent(eventFlag::option, {2.5, -2.5}),
        (SyntheticEvent{EventType::scrollWheel, {}, eventFlag::option,
            {{EventField{88}, 1}, {EventField{96}, 3}, {EventField{97}, -3},
                {EventField{42}, 0x4D4F53455343524C}}}));
    EXPECT_EQ(scrollEvent(0, {0.49, -0.49}).fields.value(EventField{96}), 0);
}

TEST(scrollEvent, holdsThirtyTwoBits)
{
    EXPECT_EQ(scrollEvent(0, {2147483647.4, 0}).fields.value(EventField{96}), 2147483647);
    EXPECT_EQ(scrollEvent(0, {0, -2147483648.4}).fields.value(EventField{97}), -2147483648);
    EXPECT_DEATH(scrollEvent(0, {2147483647.5, 0}), "scroll event of");
    EXPECT_DEATH(scrollEvent(0, {0, -2147483648.5}), "scroll event of");
    EXPECT_DEATH(scrollEvent(0, {std::nan(""), 0}), "scroll event of");
}

TEST(eventTriggers, ofTheWheelAreNoneWhileNotchesStayWhatTheyAre)
{
    EXPECT_EQ(mouseScrollEventMask, 0x400000u);
    const MouseScrollConfig plain;
    EXPECT_FALSE(eventTriggers(plain).wheel);
    auto config = plain;
    config.smoothEnabled = true;
    EXPECT_TRUE(eventTriggers(config).wheel);
    config = plain;
    config.invertHorizontal = true;
    EXPECT_TRUE(eventTriggers(config).wheel);
    config = plain;
    config.invertVertical = true;
    EXPECT_TRUE(eventTriggers(config).wheel);
    config = plain;
    config.speedMultiplier = 1.25;
    EXPECT_TRUE(eventTriggers(config).wheel);
    config = plain;
    config.acceleration = 0.1;
    EXPECT_TRUE(eventTriggers(config).wheel);
    config = plain;
    config.smoothDuration = 0.4;
    EXPECT_FALSE(eventTriggers(config).wheel);
}

TEST(MouseScrollConfig, hasNoUnusualNumbersWithinWhatCanBeChosen)
{
    EXPECT_EQ(unusualNumbers({}), std::vector<std::string>());
    EXPECT_EQ(unusualNumbers({.smoothDuration = 0.05, .speedMultiplier = 0.5, .acceleration = 0}),
        std::vector<std::string>());
    EXPECT_EQ(unusualNumbers({.smoothDuration = 0.4, .speedMultiplier = 3, .acceleration = 1}),
        std::vector<std::string>());
}

TEST(MouseScrollConfig, namesItsUnusualNumbers)
{
    EXPECT_EQ(unusualNumbers({.smoothDuration = 0, .speedMultiplier = -1, .acceleration = 1.01}),
        (std::vector<std::string>{"MouseScroll: smoothDuration is 0.0, usual are 0.05 to 0.4",
            "MouseScroll: speedMultiplier is -1.0, usual are 0.5 to 3.0",
            "MouseScroll: acceleration is 1.01, usual are 0.0 to 1.0"}));
    EXPECT_EQ(unusualNumbers({.smoothDuration = 1e308}),
        std::vector<std::string>{"MouseScroll: smoothDuration is 1e+308, usual are 0.05 to 0.4"});
    EXPECT_EQ(unusualNumbers({.speedMultiplier = 1e308, .acceleration = -0.1}),
        (std::vector<std::string>{"MouseScroll: speedMultiplier is 1e+308, usual are 0.5 to 3.0",
            "MouseScroll: acceleration is -0.1, usual are 0.0 to 1.0"}));
}

} // namespace
} // namespace brindlex
