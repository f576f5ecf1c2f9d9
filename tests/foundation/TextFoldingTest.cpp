#include "foundation/TextFolding.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

std::string folded(std::string_view text, std::string_view locale = "en_GB.UTF-8")
{
    return TextFolding(locale).folded(text);
}

TEST(TextFolding, leavesNoCase)
{
    EXPECT_EQ(folded("Plain TEXT 123 [\\]^_`{}"), "plain text 123 [\\]^_`{}");
    EXPECT_EQ(folded("ÄÖÜ ΛΌΓΟΣ ДОМ"), folded("äöü λόγος дом"));
    EXPECT_EQ(folded("STRASSE"), folded("Straße"));
    EXPECT_EQ(folded("STRAẞE"), "strasse");
    EXPECT_EQ(folded("ﬁn"), "fin");
}

TEST(TextFolding, leavesNoDiacritics)
{
    EXPECT_EQ(folded("Éditeur ÑANDÚ ÀB Ǖ ᾧ"), "editeur nandu ab u ω");
    EXPECT_EQ(folded("E\u0301diteur o\u0308\u0304"), "editeur o");
    EXPECT_EQ(folded("Ёлка Йод"), "елка иод");
    EXPECT_EQ(folded("شَدَّة"), "شدة");
    EXPECT_EQ(folded("がパ"), "かハ");
}

TEST(TextFolding, keepsLettersThatAreNoVariants)
{
    EXPECT_EQ(folded("øłđ"), "øłđ");
    EXPECT_EQ(folded("文件 한국어"), "文件 한국어");
    EXPECT_EQ(folded("हिन्दी"), "हिनदी");
    EXPECT_EQ(folded("ภาษาไทย"), "ภาษาไทย");
}

TEST(TextFolding, keepsWhatMakesAPictureOfScalars)
{
    for (const char* text : {"👩‍👩‍👧", "🇩🇪🇫🇷", "☺️", "1️⃣", "👍🏽"})
        EXPECT_EQ(folded(text), text);
}

TEST(TextFolding, makesOneOfWhatIsCanonicallyEquivalent)
{
    EXPECT_EQ(folded("\u1112\u1161\u11AB"), "한");
    EXPECT_EQ(folded("\u212B"), folded("A\u030A"));
    EXPECT_EQ(folded("q\u0323\u0307x"), folded("q\u0307\u0323x"));
    EXPECT_EQ(folded("\u0958"), folded("\u0915\u093C"));
}

TEST(TextFolding, knowsTwoLettersIInTurkish)
{
    for (const char* locale : {"tr_TR.UTF-8", "tr", "az-Latn", "az@latin"}) {
        EXPECT_EQ(folded("IRMAK", locale), "ırmak") << locale;
        EXPECT_EQ(folded("İZMİR", locale), "izmir") << locale;
        EXPECT_EQ(folded("I\u0307ZMI\u0307R", locale), "izmir") << locale;
        EXPECT_EQ(folded("I\u0323\u0307", locale), "i") << locale;
        EXPECT_EQ(folded("I\u0301\u0307", locale), "ı") << locale;
        EXPECT_EQ(folded("iı ÉI", locale), "iı eı") << locale;
    }
}

TEST(TextFolding, knowsOneLetterIInAllOtherLanguages)
{
    for (const char* locale : {"", "C", "de_DE.UTF-8", "trv_TW", "en"}) {
        EXPECT_EQ(folded("IRMAK İZMİR", locale), "irmak izmir") << locale;
        EXPECT_EQ(folded("ırmak", locale), "ırmak") << locale;
    }
}

TEST(TextFolding, readsBytesThatAreNoTextAsReplacements)
{
    EXPECT_EQ(folded("A\xFF\xFEZ"), "a\uFFFD\uFFFDz");
    EXPECT_EQ(folded("\xE6\xBC"), "\uFFFD");
    EXPECT_EQ(folded(""), "");
    EXPECT_EQ(folded(std::string_view("A\0É", 4)), std::string("a\0e", 3));
}

TEST(TextFolding, takesNoShortCutThatCanBeSeen)
{
    for (const char* locale : {"en", "tr"})
        for (int byte = 0; byte < 0x80; ++byte) {
            const std::string text(2, static_cast<char>(byte));
            EXPECT_EQ(folded(text + "漢", locale), folded(text, locale) + "漢") << byte;
        }
}

TEST(TextFolding, changesNothingMoreTheSecondTime)
{
    for (const char* text : {"Éditeur STRASSE", "ᾧ", "İ", "ǰ", "ŉ", "한", "\u0958", "\u1E9B\u0323"})
        EXPECT_EQ(folded(folded(text)), folded(text)) << text;
}

} // namespace
} // namespace brindlex
