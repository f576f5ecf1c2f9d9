#include "eventtap/KeyName.h"

#include <gtest/gtest.h>

#include <utility>

namespace brindlex {
namespace {

/// A layout where key 0 writes "a", key 12 "é", key 27 "ß" and all others nothing.
std::string written(std::int64_t keyCode)
{
    return keyCode == 0 ? "a" : keyCode == 12 ? "é" : keyCode == 27 ? "ß" : "";
}

TEST(KeyName, isWhatTheKeyDoes)
{
    const std::pair<int, const char*> rows[]{{36, "Return"}, {48, "Tab"}, {49, "Space"},
        {51, "Delete"}, {53, "Escape"}, {96, "F5"}, {98, "F7"}, {99, "F3"}, {100, "F8"},
        {101, "F9"}, {103, "F11"}, {109, "F10"}, {97, "F6"}, {111, "F12"}, {118, "F4"}, {120, "F2"},
        {122, "F1"}, {123, "Left"}, {124, "Right"}, {125, "Down"}, {126, "Up"}};
    for (const auto& [keyCode, name] : rows)
        EXPECT_EQ(keyName(keyCode, written), name);
}

TEST(KeyName, isWhatTheKeyWritesInUpperCase)
{
    EXPECT_EQ(keyName(0, written), "A");
    EXPECT_EQ(keyName(12, written), "É");
    EXPECT_EQ(keyName(27, written), "SS");
}

TEST(KeyName, isTheNumberOfAKeyThatWritesNothing)
{
    EXPECT_EQ(keyName(200, written), "Key 200");
    EXPECT_EQ(keyName(-1, written), "Key -1");
}

TEST(KeyName, isInTheWordsOfAReader)
{
    const KeyWords words{{{"Left", "Links"}},
        [](std::int64_t keyCode) { return "Taste " + std::to_string(keyCode); }};

    EXPECT_EQ(keyName(123, written, words), "Links");
    EXPECT_EQ(keyName(124, written, words), "Right");
    EXPECT_EQ(keyName(96, written, words), "F5");
    EXPECT_EQ(keyName(12, written, words), "É");
    EXPECT_EQ(keyName(200, written, words), "Taste 200");
}

TEST(KeyName, standsBehindTheModifiers)
{
    EXPECT_EQ(comboText({0, {}}, written), "A");
    EXPECT_EQ(comboText({0, ModifierSet::option}, written),
        ModifierSet{ModifierSet::option}.displayText() + " A");
    const auto all
        = ModifierSet::command | ModifierSet::option | ModifierSet::control | ModifierSet::shift;
    EXPECT_EQ(comboText({36, all}, written), all.displayText() + " Return");
}

} // namespace
} // namespace brindlex
