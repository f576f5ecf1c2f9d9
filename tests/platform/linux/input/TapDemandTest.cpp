#include "platform/linux/input/TapDemand.h"

#include <gtest/gtest.h>
#include <vector>

namespace brindlex {
namespace {

using Trigger = TapDemand::Trigger;

constexpr EventMask gestureMask = mouseButtonMaskOf(2);
constexpr EventMask leftMask = mouseButtonMaskOf(0);
constexpr EventMask wheelMask = eventMask(EventType::scrollWheel);
constexpr EventMask keyDownMask = eventMask(EventType::keyDown);

TapDemand demand(std::vector<EventInterest> interests) { return demandOf(interests); }

TEST(TapDemand, isNothingWithoutInterests)
{
    EXPECT_TRUE(demand({}).isNothing());
    EXPECT_TRUE(demand({{gestureMask | keyDownMask, EventTriggers{}}}).isNothing());
}

TEST(TapDemand, takesEveryDeviceWhoseEventsAreAllWanted)
{
    EXPECT_EQ(demand({{gestureMask, {}}}), (TapDemand{.takesMice = true}));
    EXPECT_EQ(demand({{wheelMask, {}}}), (TapDemand{.takesMice = true}));
    EXPECT_EQ(demand({{keyDownMask, {}}}), (TapDemand{.takesKeyboards = true}));
}

TEST(TapDemand, takesTheMiceForTheWheel)
{
    EXPECT_EQ(demand({{wheelMask, EventTriggers{.wheel = true}}}), (TapDemand{.takesMice = true}));
    EXPECT_TRUE(demand({{gestureMask, EventTriggers{.wheel = true}}}).isNothing());
}

TEST(TapDemand, waitsForButtons)
{
    const EventTriggers triggers{
        .buttons = {{2, {}}, {3, eventFlag::command}, {4, std::uint64_t{0}}}};

    EXPECT_EQ(demand({{gestureMask, triggers}}),
        (TapDemand{.buttons = {Trigger{2, {}}, Trigger{8, eventFlag::command}, Trigger{9, 0}}}));
}

TEST(TapDemand, waitsOnlyForButtonsOfTheMask)
{
    const EventTriggers triggers{.buttons = {{0, {}}, {1, {}}, {2, {}}}};

    EXPECT_EQ(demand({{leftMask, triggers}}), (TapDemand{.buttons = {Trigger{1, {}}}}));
}

TEST(TapDemand, waitsForKeysInEveryPlaceThatTheyHave)
{
    const EventTriggers triggers{.keys = {{0, eventFlag::control}, {105, 0}, {52, 0}}};

    EXPECT_EQ(demand({{keyDownMask, triggers}}),
        (TapDemand{.keys = {Trigger{38, eventFlag::control}, Trigger{107, 0}, Trigger{191, 0}}}));
    EXPECT_TRUE(demand({{eventMask(EventType::keyUp), triggers}}).isNothing());
}

TEST(TapDemand, joinsTheInterests)
{
    const EventInterest bound{gestureMask, EventTriggers{.buttons = {{2, eventFlag::shift}}}};
    const EventInterest any{gestureMask, EventTriggers{.buttons = {{2, {}}}}};
    const EventInterest hotkey{keyDownMask, EventTriggers{.keys = {{0, 0}}}};
    const EventInterest recorder{keyDownMask, {}};

    EXPECT_EQ(demand({bound, any}), (TapDemand{.buttons = {Trigger{2, {}}}}));
    EXPECT_EQ(demand({hotkey, bound}),
        (TapDemand{.buttons = {Trigger{2, eventFlag::shift}}, .keys = {Trigger{38, 0}}}));
    EXPECT_EQ(demand({hotkey, recorder}), (TapDemand{.takesKeyboards = true}));
    EXPECT_EQ(demand({bound, {wheelMask, {}}}), (TapDemand{.takesMice = true}));
}

} // namespace
} // namespace brindlex
