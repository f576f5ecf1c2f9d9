#include "eventtap/views/KeysOfReader.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr std::int64_t silentKey = 200;

std::string capsOf(const std::string& language, std::vector<std::int64_t> keyCodes)
{
    const StringCatalogue strings(language);
    const Theme theme;
    const auto keys = keysOfReader({theme, strings},
        [](std::int64_t keyCode) { return std::string(keyCode == silentKey ? "" : "é"); });
    std::string line;
    for (const auto& cap : keyCaps({53,
                                       ModifierSet::command | ModifierSet::shift
                                           | ModifierSet::option | ModifierSet::control},
             keys))
        line += cap + " ";
    for (const auto keyCode : keyCodes)
        line += keyCaps({keyCode, {}}, keys).front() + " ";
    return line;
}

const std::vector<std::int64_t> all{36, 48, 49, 51, 123, 124, 125, 126, 96, 0, silentKey};

TEST(KeysOfReader, areThoseOfAKeyboardWithEnglishLetters)
{
    EXPECT_EQ(capsOf("en", all),
        "Ctrl Alt Shift Super Escape Return Tab Space Backspace Left Right Down Up F5 É Key 200 ");
}

TEST(KeysOfReader, areThoseOfTheKeyboardsOfOtherLanguages)
{
    EXPECT_EQ(capsOf("de", all),
        "Strg Alt Umschalt Super Esc Eingabe Tab Leertaste Rücktaste Links Rechts Runter Hoch F5 É "
        "Taste 200 ");
    EXPECT_EQ(capsOf("fr", all),
        "Ctrl Alt Maj Super Échap Entrée Tab Espace Retour arrière Gauche Droite Bas Haut F5 É "
        "Touche 200 ");
    EXPECT_EQ(capsOf("zh-Hans", all),
        "Ctrl Alt Shift Super Esc 回车 Tab 空格 退格 左 右 下 上 F5 É 按键 200 ");
}

} // namespace
} // namespace brindlex
