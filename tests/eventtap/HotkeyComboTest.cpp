#include "eventtap/HotkeyCombo.h"

#include "foundation/JsonCoding.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(HotkeyCombo, isStoredUnderTwoKeys)
{
    const HotkeyCombo combo{9, ModifierSet::command | ModifierSet::shift};

    EXPECT_EQ(jsonText(toJson(combo)), R"({"keyCode":9,"modifiers":9})");
    EXPECT_EQ(fromJson<HotkeyCombo>(toJson(combo)).value(), combo);
}

TEST(HotkeyCombo, needsBothKeys)
{
    EXPECT_FALSE(fromJson<HotkeyCombo>(Json{{"keyCode", 9}}));
    EXPECT_FALSE(fromJson<HotkeyCombo>(Json{{"modifiers", 9}}));
}

TEST(HotkeyCombo, keepsANegativeKeyCode)
{
    EXPECT_EQ(fromJson<HotkeyCombo>(Json{{"keyCode", -1}, {"modifiers", 0}}).value(),
        (HotkeyCombo{-1, {}}));
}

TEST(HotkeyCombo, hashesEqualCombosEqually)
{
    const std::hash<HotkeyCombo> hash;
    EXPECT_EQ(hash({9, ModifierSet::command}), hash({9, ModifierSet::command}));
    EXPECT_NE(hash({9, ModifierSet::command}), hash({9, {}}));
    EXPECT_NE(hash({9, ModifierSet::command}), hash({8, ModifierSet::command}));
}

} // namespace
} // namespace brindlex
