#include "preferences/UserDefaultsStorageBox.h"

#include "eventtap/HotkeyCombo.h"
#include "mouse/MouseConfig.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Hotkey = UserDefaultsStorageBox<HotkeyCombo>;
using Texts = UserDefaultsStorageBox<std::vector<std::string>>;
using Numbers = UserDefaultsStorageBox<std::map<std::string, std::vector<double>>>;

TEST(UserDefaultsStorageBox, isCompactJsonWithTheKeysInTheOrderOfTheFields)
{
    EXPECT_EQ((Hotkey{{9, ModifierSet{9}}}.rawValue()), R"({"keyCode":9,"modifiers":9})");
    EXPECT_EQ(UserDefaultsStorageBox<MouseConfig>{}.rawValue(),
        R"({"click":{"enabled":true,"bindings":[]},)"
        R"("gesture":{"enabled":true,"bindings":[],"distanceThreshold":30.0},)"
        R"("scroll":{"smoothEnabled":false,"smoothDuration":0.18,"speedMultiplier":1.0,)"
        R"("acceleration":0.0,"invertVertical":false,"invertHorizontal":false,)"
        R"("disabledApps":[]}})");
}

TEST(UserDefaultsStorageBox, readsWhatItHasWritten)
{
    const Hotkey hotkey{{-1, ModifierSet{0xFFFF'FFFF'FFFF'FFFF}}};
    EXPECT_EQ(Hotkey::fromRawValue(hotkey.rawValue()), hotkey);

    const Texts texts{{"", "\"quoted\"\\", std::string("a\0b", 3), "\n\t\x01", "键盘 🎹"}};
    EXPECT_EQ(Texts::fromRawValue(texts.rawValue()), texts);
}

TEST(UserDefaultsStorageBox, readsAnyWhiteSpaceOrderAndFurtherKeys)
{
    EXPECT_EQ(Hotkey::fromRawValue("{ \"more\": [1],\n\"modifiers\" : 2, \"keyCode\":0 }"),
        (Hotkey{{0, ModifierSet::option}}));
}

TEST(UserDefaultsStorageBox, isEmptyTextForAValueThatJsonCannotHold)
{
    MouseConfig config;
    config.gesture.distanceThreshold = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(UserDefaultsStorageBox<MouseConfig>{config}.rawValue(), "");

    const auto infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ((Numbers{{{"a", {1.0, -infinity}}}}.rawValue()), "");
    EXPECT_EQ((Numbers{{{"a", {1.0}}}}.rawValue()), R"({"a":[1.0]})");
}

TEST(UserDefaultsStorageBox, replacesBytesThatAreNotTextAndStaysReadable)
{
    EXPECT_EQ((Texts{{"a\xFFz"}}.rawValue()), "[\"a\xEF\xBF\xBDz\"]");
}

TEST(UserDefaultsStorageBox, isNothingForAnyOtherText)
{
    for (const std::string text : {"", " ", "{", "null", "5", "\"\"", "[]", "{}",
             R"({"keyCode":9})", R"({"keyCode":"9","modifiers":9})",
             R"({"keyCode":9,"modifiers":-1})", R"({"keyCode":9.5,"modifiers":9})",
             R"({"keyCode":9,"modifiers":9}x)", "{\"keyCode\":9,\"modifiers\":9,\"x\":\"\xFF\"}"})
        EXPECT_EQ(Hotkey::fromRawValue(text), std::nullopt) << text;

    EXPECT_EQ(Hotkey::fromRawValue(std::string(1'000'000, '[')), std::nullopt);
    EXPECT_EQ(
        Hotkey::fromRawValue(std::string("{\"keyCode\":9,\0\"modifiers\":9}", 28)), std::nullopt);
}

} // namespace
} // namespace brindlex
