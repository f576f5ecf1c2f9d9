#include "platform/InputSourceIdentifiers.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(InputSourceIdentifiers, writesALayoutWithItsVariantAndLanguage)
{
    EXPECT_EQ(xkbSourceID({"us", ""}, "eng"), "xkb:us::eng");
    EXPECT_EQ(xkbSourceID({"us", "intl"}, "eng"), "xkb:us:intl:eng");
    EXPECT_EQ(xkbSourceID({"custom", ""}, ""), "xkb:custom::");
}

TEST(InputSourceIdentifiers, writesTheTerminologicalCodeOfALanguageWithTwo)
{
    const std::pair<const char*, const char*> codes[]
        = {{"alb", "sqi"}, {"arm", "hye"}, {"baq", "eus"}, {"bur", "mya"}, {"chi", "zho"},
            {"cze", "ces"}, {"dut", "nld"}, {"fre", "fra"}, {"geo", "kat"}, {"ger", "deu"},
            {"gre", "ell"}, {"ice", "isl"}, {"mac", "mkd"}, {"mao", "mri"}, {"may", "msa"},
            {"per", "fas"}, {"rum", "ron"}, {"slo", "slk"}, {"tib", "bod"}, {"wel", "cym"}};
    for (const auto& [bibliographic, terminological] : codes) {
        EXPECT_EQ(canonicalSourceID(std::string("xkb:xx::") + bibliographic),
            std::string("xkb:xx::") + terminological);
        EXPECT_EQ(canonicalSourceID(std::string("xkb:xx::") + terminological),
            std::string("xkb:xx::") + terminological);
    }
}

TEST(InputSourceIdentifiers, leavesAllOtherTextAsItIs)
{
    for (const auto* id : {"", "xkb:", "xkb:us", "xkb:us:", "xkb:::ger", "xkb:a:b:c:ger",
             "ibus:ger", "fcitx5:pinyin", "com.apple.keylayout.ABC", "\xff\xfe"})
        EXPECT_EQ(canonicalSourceID(id), id);
}

TEST(InputSourceIdentifiers, readsTheLayoutOfAnIdentifier)
{
    EXPECT_EQ(layoutOfSource("xkb:ca:fr-dvorak:fra"), (XkbLayout{"ca", "fr-dvorak"}));
    EXPECT_EQ(layoutOfSource("xkb:us::eng"), (XkbLayout{"us", ""}));
    EXPECT_EQ(layoutOfSource("ibus:libpinyin"), std::nullopt);
}

TEST(InputSourceIdentifiers, areTheSameForTheSameLayoutWhateverItsLanguage)
{
    EXPECT_TRUE(isSameSource("xkb:in:eng:eng", "xkb:in:eng:hin"));
    EXPECT_TRUE(isSameSource("xkb:de::ger", "xkb:de::deu"));
    EXPECT_TRUE(isSameSource("xkb:custom::", "xkb:custom::eng"));
    EXPECT_TRUE(isSameSource("ibus:libpinyin", "ibus:libpinyin"));
    EXPECT_TRUE(isSameSource("xkb:us::eng#2", "xkb:us::deu#2"));
    EXPECT_FALSE(isSameSource("xkb:us::eng", "xkb:us::eng#2"));
    EXPECT_FALSE(isSameSource("xkb:us:intl:eng", "xkb:us::eng"));
    EXPECT_FALSE(isSameSource("xkb:us::eng", "xkb:gb::eng"));
    EXPECT_FALSE(isSameSource("ibus:libpinyin", "fcitx5:libpinyin"));
    EXPECT_FALSE(isSameSource("xkb:de", "xkb:de::deu"));
    EXPECT_FALSE(isSameSource("", "xkb:de::deu"));
    EXPECT_TRUE(isSameSource("", ""));
}

TEST(InputSourceIdentifiers, namesIBusEngines)
{
    EXPECT_EQ(sourceIDOfIBusEngine("xkb:de::ger"), "xkb:de::deu");
    EXPECT_EQ(sourceIDOfIBusEngine("libpinyin"), "ibus:libpinyin");
    EXPECT_EQ(sourceIDOfIBusEngine("table:wubi-jidian86"), "ibus:table:wubi-jidian86");
    EXPECT_EQ(sourceIDOfIBusEngine(""), "ibus:");
}

TEST(InputSourceIdentifiers, namesFcitxInputMethods)
{
    EXPECT_EQ(layoutOfFcitxKeyboard("keyboard-us"), (XkbLayout{"us", ""}));
    EXPECT_EQ(layoutOfFcitxKeyboard("keyboard-us-intl"), (XkbLayout{"us", "intl"}));
    EXPECT_EQ(layoutOfFcitxKeyboard("keyboard-ca-fr-dvorak"), (XkbLayout{"ca", "fr-dvorak"}));
    EXPECT_EQ(layoutOfFcitxKeyboard("keyboard-"), std::nullopt);
    EXPECT_EQ(layoutOfFcitxKeyboard("pinyin"), std::nullopt);
    EXPECT_EQ(sourceIDOfFcitx("keyboard-us", "eng"), "xkb:us::eng");
    EXPECT_EQ(sourceIDOfFcitx("keyboard-de-nodeadkeys", "ger"), "xkb:de:nodeadkeys:deu");
    EXPECT_EQ(sourceIDOfFcitx("pinyin", ""), "fcitx5:pinyin");
}

} // namespace
} // namespace brindlex
