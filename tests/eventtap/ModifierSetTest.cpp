#include "eventtap/ModifierSet.h"

#include "foundation/JsonCoding.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr auto allModifiers
    = ModifierSet::command | ModifierSet::option | ModifierSet::control | ModifierSet::shift;

TEST(ModifierSet, takesExactlyFourOfAnEventsFlags)
{
    EXPECT_EQ(ModifierSet::fromEventFlags(0x100000), ModifierSet{1});
    EXPECT_EQ(ModifierSet::fromEventFlags(0x80000), ModifierSet{2});
    EXPECT_EQ(ModifierSet::fromEventFlags(0x40000), ModifierSet{4});
    EXPECT_EQ(ModifierSet::fromEventFlags(0x20000), ModifierSet{8});
    EXPECT_EQ(ModifierSet::fromEventFlags(~std::uint64_t{0x1E0000}), ModifierSet{});
    EXPECT_EQ(ModifierSet::fromEventFlags(~std::uint64_t{0}), allModifiers);
}

TEST(ModifierSet, givesBackTheFlags)
{
    EXPECT_EQ(ModifierSet{}.eventFlags(), 0u);
    EXPECT_EQ(allModifiers.eventFlags(), 0x1E0000u);
    EXPECT_EQ((ModifierSet::command | ModifierSet::shift).eventFlags(), 0x120000u);
}

TEST(ModifierSet, showsItsFlagsInOneOrder)
{
    EXPECT_EQ(ModifierSet{}.displayText(), "");
    EXPECT_EQ(allModifiers.displayText(), "^ Option Shift Command");
    EXPECT_EQ(ModifierSet::control.displayText(), "^");
    EXPECT_EQ(ModifierSet::option.displayText(), "Option");
}

TEST(ModifierSet, ofCommandAndShiftIsNine)
{
    const auto set = ModifierSet::command | ModifierSet::shift;

    EXPECT_EQ(set.rawValue, 9u);
    EXPECT_EQ(set.displayText(), "Shift Command");
}

TEST(ModifierSet, isStoredAsThePlainNumber)
{
    EXPECT_EQ(toJson(ModifierSet{9}), Json(9));
    EXPECT_EQ(fromJson<ModifierSet>(Json(9)).value(), ModifierSet{9});
    EXPECT_FALSE(fromJson<ModifierSet>(Json(-1)));
    EXPECT_FALSE(fromJson<ModifierSet>(Json("9")));
}

TEST(ModifierSet, keepsBitsThatItDoesNotKnow)
{
    const auto set = fromJson<ModifierSet>(Json(17)).value();

    EXPECT_EQ(set.displayText(), "Command");
    EXPECT_NE(set, ModifierSet::command);
    EXPECT_EQ(toJson(set), Json(17));
}

} // namespace
} // namespace brindlex
