#include "platform/linux/input/X11PointerMap.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Buttons = std::vector<std::uint8_t>;

const X11PointerMap leftHand({3, 2, 1, 4, 5, 6, 7, 8, 9});

TEST(X11PointerMap, leavesEveryButtonItself)
{
    const X11PointerMap map;
    EXPECT_EQ(map.meaningOf(1), 1);
    EXPECT_EQ(map.meaningOf(12), 12);
    EXPECT_EQ(map.buttonsFor(8), Buttons{8});
}

TEST(X11PointerMap, changesTheButtonsOverForTheLeftHand)
{
    EXPECT_EQ(leftHand.meaningOf(1), 3);
    EXPECT_EQ(leftHand.meaningOf(3), 1);
    EXPECT_EQ(leftHand.meaningOf(2), 2);
    EXPECT_EQ(leftHand.buttonsFor(3), Buttons{1});
    EXPECT_EQ(leftHand.buttonsFor(1), Buttons{3});
    EXPECT_EQ(leftHand.buttonsFor(12), Buttons{12}) << "beyond the map";
}

TEST(X11PointerMap, knowsButtonsThatAreNoneAndThoseThatAreTheSame)
{
    const X11PointerMap map({1, 1, 0});
    EXPECT_EQ(map.meaningOf(3), 0);
    EXPECT_EQ(map.buttonsFor(1), (Buttons{1, 2}));
    EXPECT_EQ(map.buttonsFor(3), Buttons{});
    EXPECT_EQ(map.buttonsFor(2), Buttons{});
}

TEST(X11PointerMap, turnsADemandIntoOneOfTheHand)
{
    const TapDemand demand{.takesKeyboards = true, .buttons = {{1, {}}, {2, 0}, {8, {}}}};

    EXPECT_EQ(leftHand.ofHand(demand),
        (TapDemand{.takesKeyboards = true, .buttons = {{3, {}}, {2, 0}, {8, {}}}}));
    EXPECT_EQ(X11PointerMap({1, 0, 2, 4, 5, 6, 7, 0}).ofHand(demand),
        (TapDemand{.takesKeyboards = true, .buttons = {{1, {}}, {3, 0}}}));
}

} // namespace
} // namespace brindlex
