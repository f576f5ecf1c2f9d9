#include "eventtap/KeyCaps.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const KeyNaming pcKeys{.modifiers = {"Ctrl", "Alt", "Shift", "Super"},
    .characters = [](std::int64_t keyCode) { return std::string(keyCode == 0 ? "a" : ""); }};

using Caps = std::vector<std::string>;

TEST(KeyCaps, nameTheModifiersInOneOrderBeforeTheKey)
{
    const auto all
        = ModifierSet::command | ModifierSet::shift | ModifierSet::option | ModifierSet::control;

    EXPECT_EQ(keyCaps({0, all}, pcKeys), (Caps{"Ctrl", "Alt", "Shift", "Super", "A"}));
    EXPECT_EQ(keyCaps({123, ModifierSet::option}, pcKeys), (Caps{"Alt", "Left"}));
}

TEST(KeyCaps, areInTheWordsOfAReader)
{
    auto german = pcKeys;
    german.modifiers.control = "Strg";
    german.words.names = {{"Left", "Links"}};

    EXPECT_EQ(keyCaps({123, ModifierSet::control}, german), (Caps{"Strg", "Links"}));
}

TEST(KeyCaps, areOneForAKeyAlone) { EXPECT_EQ(keyCaps({96, {}}, pcKeys), (Caps{"F5"})); }

TEST(KeyCaps, areNoneWithoutAKey)
{
    EXPECT_EQ(keyCaps({-1, ModifierSet::shift}, pcKeys), (Caps{}));
}

} // namespace
} // namespace brindlex
