#include "inputmethod/InputSourceBadge.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(InputSourceBadge, isTheCodeOfALayoutInCapitals)
{
    EXPECT_EQ(inputSourceBadge({.id = "xkb:us::eng", .localizedName = "English (US)"}), "US");
    EXPECT_EQ(inputSourceBadge({.id = "xkb:de:nodeadkeys:deu", .localizedName = "German"}), "DE");
}

TEST(InputSourceBadge, hasThreeLettersAtTheMost)
{
    EXPECT_EQ(inputSourceBadge({.id = "xkb:latam::spa", .localizedName = "Spanish"}), "LAT");
}

TEST(InputSourceBadge, isTheFirstCharacterOfTheNameOfAnInputMethod)
{
    EXPECT_EQ(inputSourceBadge({.id = "fcitx5:pinyin", .localizedName = "拼音"}), "拼");
    EXPECT_EQ(inputSourceBadge({.id = "ibus:anthy", .localizedName = "anthy"}), "A");
}

TEST(InputSourceBadge, isEmptyWithoutAName)
{
    EXPECT_EQ(inputSourceBadge({.id = "ibus:x", .localizedName = ""}), "");
    EXPECT_EQ(inputSourceBadge({.id = "xkb:", .localizedName = "Nothing"}), "");
}

} // namespace
} // namespace brindlex
