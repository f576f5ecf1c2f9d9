#include "platform/linux/x11/X11Buttons.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace brindlex {
namespace {

constexpr std::uint32_t highestButton = 255;

TEST(X11Buttons, haveTheNumbersOfAnEvent)
{
    EXPECT_EQ(buttonNumber(1), 0);
    EXPECT_EQ(buttonNumber(3), 1);
    EXPECT_EQ(buttonNumber(2), 2);
    for (std::uint32_t button = 8; button <= highestButton; ++button)
        EXPECT_EQ(buttonNumber(button), button - 5) << button;
}

TEST(X11Buttons, leadBackFromTheirNumbers)
{
    std::set<std::int64_t> numbers;
    for (std::uint32_t button = 1; button <= highestButton; ++button) {
        if (isWheel(button))
            continue;
        EXPECT_EQ(buttonOfNumber(buttonNumber(button)), button) << button;
        EXPECT_TRUE(numbers.insert(buttonNumber(button)).second) << button;
    }
}

TEST(X11Buttons, areNoneForNumbersThatNoButtonHas)
{
    for (const std::int64_t number : {-1L, INT64_MIN, 251L, 255L, 256L, 257L, INT64_MAX})
        EXPECT_EQ(buttonOfNumber(number), 0) << number;
}

TEST(X11Buttons, turnALineEachWhereTheyAreOfTheWheel)
{
    const std::map<std::uint32_t, WheelLines> lines{
        {wheelUp, {1, 0}}, {wheelDown, {-1, 0}}, {wheelLeft, {0, 1}}, {wheelRight, {0, -1}}};
    for (std::uint32_t button = 0; button <= highestButton + 1; ++button) {
        EXPECT_EQ(isWheel(button), lines.contains(button)) << button;
        const auto expected = lines.contains(button) ? lines.at(button) : WheelLines{};
        EXPECT_EQ(wheelLinesOf(button), expected) << button;
    }
}

} // namespace
} // namespace brindlex
