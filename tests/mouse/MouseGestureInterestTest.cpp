#include "mouse/MouseGesture.h"

#include <gtest/gtest.h>

#include <vector>

namespace brindlex {
namespace {

TEST(eventMask, isTheUnionOfTheButtonGroupsInUse)
{
    const auto maskOf = [](std::vector<MouseButton> buttons) {
        std::vector<MouseGestureBinding> bindings;
        for (const auto button : buttons)
            bindings.push_back({{}, button, {}, MouseDirection::up, MouseAction::Plain::back});
        return eventMask(true, bindings);
    };
    EXPECT_EQ(maskOf({}), 0u);
    EXPECT_EQ(maskOf({MouseButton::left}), 0x46u);
    EXPECT_EQ(maskOf({MouseButton::right}), 0x98u);
    EXPECT_EQ(maskOf({MouseButton::button3}), 0xE000000u);
    EXPECT_EQ(maskOf({MouseButton::button4}), 0xE000000u);
    EXPECT_EQ(maskOf({MouseButton::button5}), 0xE000000u);
    EXPECT_EQ(
        maskOf({MouseButton::button5, MouseButton::right, MouseButton::left, MouseButton::right}),
        0xE0000DEu);
}

TEST(eventMask, isZeroWhenGesturesAreOff)
{
    EXPECT_EQ(eventMask(false,
                  {{{}, MouseButton::left, {}, MouseDirection::up, MouseAction::Plain::back}}),
        0u);
}

TEST(eventTriggers, ofGesturesAreTheirButtonsWithTheirModifiers)
{
    MouseGestureConfig config;
    config.bindings = {{{}, MouseButton::button5, ModifierSet::shift, MouseDirection::up,
                           MouseAction::Plain::back},
        {{}, MouseButton::left, {}, MouseDirection::up, MouseAction::Plain::back},
        {{}, MouseButton::button5, {}, MouseDirection::up, MouseAction::Plain::back},
        {{}, MouseButton::button5, {}, MouseDirection::down, MouseAction::Plain::forward}};

    EXPECT_EQ(
        eventTriggers(config), (EventTriggers{{{4, eventFlag::shift}, {0, 0}, {4, 0}}, {}, false}));
}

} // namespace
} // namespace brindlex
