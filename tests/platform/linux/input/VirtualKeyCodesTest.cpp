#include "platform/linux/input/VirtualKeyCodes.h"

#include "platform/Event.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace brindlex {
namespace {

TEST(VirtualKeyCodes, knowKeysByTheirPlace)
{
    EXPECT_EQ(virtualKeyCode(38), 0); // A
    EXPECT_EQ(virtualKeyCode(9), 53); // Escape
    EXPECT_EQ(virtualKeyCode(36), 36); // Return
    EXPECT_EQ(virtualKeyCode(34), 33); // left bracket
    EXPECT_EQ(virtualKeyCode(35), 30); // right bracket
    EXPECT_EQ(virtualKeyCode(95), 103); // F11
    EXPECT_EQ(virtualKeyCode(113), 123); // left arrow
    EXPECT_EQ(virtualKeyCode(133), 55); // left Super
    EXPECT_EQ(virtualKeyCode(94), 10); // the key beside the left Shift
}

TEST(VirtualKeyCodes, leadBackToTheKey)
{
    for (int keycode = 8; keycode < 256; ++keycode) {
        const auto codes = keycodesOf(virtualKeyCode(static_cast<std::uint8_t>(keycode)));
        EXPECT_NE(std::ranges::find(codes, keycode), codes.end()) << keycode;
    }
}

TEST(VirtualKeyCodes, standForOneKeyEach)
{
    std::set<int> seen;
    for (std::int64_t code = 0; code < 0x200; ++code)
        for (const auto keycode : keycodesOf(code)) {
            EXPECT_EQ(virtualKeyCode(keycode), code);
            EXPECT_TRUE(seen.insert(keycode).second) << int{keycode};
        }
}

TEST(VirtualKeyCodes, pressTheKeyOfAPersonalComputerFirst)
{
    EXPECT_EQ(keycodesOf(105)[0], 107); // Print for F13
    EXPECT_EQ(keycodesOf(114)[0], 118); // Insert for Help
}

TEST(VirtualKeyCodes, haveANumberForKeysThatAMacLacks)
{
    EXPECT_EQ(virtualKeyCode(172), 0x100 + 172); // Play
    EXPECT_EQ(keycodesOf(0x100 + 172).size(), 1U);
}

TEST(VirtualKeyCodes, knowNothingOfNumbersOfNoKey)
{
    for (const std::int64_t code : {-1L, 52L, 127L, 128L, 255L, 0x100L, 0x107L, 0x100L + 38, 0x200L,
             65535L, INT64_MAX, INT64_MIN})
        EXPECT_TRUE(keycodesOf(code).empty()) << code;
}

TEST(VirtualKeyCodes, tellWhichModifierAKeyHolds)
{
    EXPECT_EQ(modifierFlagOf(55), eventFlag::command);
    EXPECT_EQ(modifierFlagOf(60), eventFlag::shift);
    EXPECT_EQ(modifierFlagOf(57), eventFlag::capsLock);
    EXPECT_EQ(modifierFlagOf(61), eventFlag::option);
    EXPECT_EQ(modifierFlagOf(59), eventFlag::control);
    EXPECT_EQ(modifierFlagOf(0), 0U);
}

} // namespace
} // namespace brindlex
