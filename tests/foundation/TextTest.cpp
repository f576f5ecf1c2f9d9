#include "foundation/Text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

using Pieces = std::vector<std::string>;

const std::string replacement = "\uFFFD";

Pieces charactersOf(std::string_view text)
{
    Pieces pieces;
    for (const auto& character : characters(text))
        pieces.emplace_back(character);
    return pieces;
}

TEST(Text, isReadAsScalars)
{
    EXPECT_EQ(scalars(""), U"");
    EXPECT_EQ(scalars("aé漢🎛"), U"aé漢🎛");
    EXPECT_EQ(scalars(std::string_view("\0\x7F", 2)), std::u32string_view(U"\0\x7F", 2));
    EXPECT_EQ(scalars("a\xFF"), U"a\uFFFD");
}

TEST(Text, isWrittenFromScalars)
{
    EXPECT_EQ(utf8(U""), "");
    EXPECT_EQ(utf8(U"aé漢🎛"), "aé漢🎛");
    EXPECT_EQ(utf8(std::u32string{0xD800, 'a', 0xDFFF, 0x110000, 0xFFFFFFFF}),
        replacement + "a" + replacement + replacement + replacement);
    EXPECT_EQ(utf8(std::u32string{0x10FFFF, 0xFFFE}), "\U0010FFFF\uFFFE");
}

TEST(Text, hasEveryIllFormedPartReplaced)
{
    EXPECT_EQ(wellFormed(""), "");
    EXPECT_EQ(wellFormed("plain é漢🎛"), "plain é漢🎛");
    EXPECT_EQ(wellFormed("\x80"), replacement);
    EXPECT_EQ(wellFormed("\xFF\xFE"), replacement + replacement);
    // A maximal part of a sequence is one, whatever follows.
    EXPECT_EQ(wellFormed("\xE6\xBC"), replacement);
    EXPECT_EQ(wellFormed("\xF0\x9F\x8E!"), replacement + "!");
    EXPECT_EQ(wellFormed("\xE6\xBC\xE6\xBC\xA2"), replacement + "漢");
    // Overlong, a surrogate, above the last scalar: no byte of them begins anything.
    EXPECT_EQ(wellFormed("\xC0\xAF"), replacement + replacement);
    EXPECT_EQ(wellFormed("\xED\xA0\x80"), replacement + replacement + replacement);
    EXPECT_EQ(
        wellFormed("\xF4\x90\x80\x80"), replacement + replacement + replacement + replacement);
}

TEST(Text, isWellFormedOrNot)
{
    for (const auto* text : {"", "plain", "é", "漢字", "🎛",
             "a long plain text, then é at its end", "\xEF\xBF\xBD", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isWellFormed(text)) << text;
    for (const auto* text :
        {"\x80", "a\xC3", "\xC3(", "\xED\xA0\x80", "\xC0\x80", "\xF8\x88\x80\x80",
            "a long plain text, then a bad byte\xFF", "\xFF a bad byte before a long plain text"})
        EXPECT_FALSE(isWellFormed(text)) << text;
    EXPECT_TRUE(isWellFormed(std::string_view("\0", 1)));
}

TEST(Text, isTheSameAtEveryPlaceInALongText)
{
    for (std::size_t length = 0; length < 40; ++length)
        for (std::size_t place = 0; place <= length; ++place) {
            const std::string head(place, 'a');
            const std::string tail(length - place, 'b');
            ASSERT_TRUE(isWellFormed(head + "漢" + tail));
            ASSERT_EQ(wellFormed(head + "漢" + tail), head + "漢" + tail);
            ASSERT_FALSE(isWellFormed(head + "\xFF" + tail));
            ASSERT_EQ(wellFormed(head + "\xFF" + tail), head + replacement + tail);
        }
}

TEST(Text, isTrimmedOfWhiteSpaceAtBothEnds)
{
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed(" \t\r\n\v\f"), "");
    EXPECT_EQ(trimmed("  a b \n"), "a b");
    EXPECT_EQ(trimmed("plain"), "plain");
    EXPECT_EQ(trimmed("\u00A0\u2003\u3000\u2028\u0085漢\u2029\u1680"), "漢");
    // Neither the zero-width space nor the byte-order mark is white space.
    EXPECT_EQ(trimmed("\u200Ba\uFEFF"), "\u200Ba\uFEFF");
    EXPECT_EQ(trimmed(" \xFF "), "\xFF");
    EXPECT_EQ(trimmed(std::string_view(" \0 ", 3)), std::string(1, '\0'));
}

TEST(Text, isLoweredWithoutRegardToALanguage)
{
    EXPECT_EQ(lowercased(""), "");
    EXPECT_EQ(lowercased("GitHub.COM"), "github.com");
    EXPECT_EQ(lowercased("ÄÖÜ ΑΒΓ ДЖ"), "äöü αβγ дж");
    EXPECT_EQ(lowercased("I"), "i");
    EXPECT_EQ(lowercased("İ"), "i̇");
    EXPECT_EQ(lowercased("ΟΔΟΣ"), "οδος");
    EXPECT_EQ(lowercased("漢字 ß 1"), "漢字 ß 1");
    EXPECT_EQ(lowercased("A\xFF"), "a" + replacement);
    EXPECT_EQ(lowercased(std::string_view("A\0B", 3)), std::string("a\0b", 3));
}

TEST(Text, isBroughtToUpperCaseWithoutRegardToALanguage)
{
    EXPECT_EQ(uppercased(""), "");
    EXPECT_EQ(uppercased("aé ß i"), "AÉ SS I");
}

TEST(Text, isSplitIntoAtLeastOnePiece)
{
    EXPECT_EQ(split("", '/'), Pieces{""});
    EXPECT_EQ(split("a", '/'), Pieces{"a"});
    EXPECT_EQ(split("/", '/'), (Pieces{"", ""}));
    EXPECT_EQ(split("a//b/", '/'), (Pieces{"a", "", "b", ""}));
    EXPECT_EQ(split(std::string_view("a\0b", 3), '\0'), (Pieces{"a", "b"}));
}

TEST(Text, consistsOfTheCharactersThatAReaderSees)
{
    EXPECT_EQ(charactersOf(""), Pieces{});
    EXPECT_EQ(charactersOf("abc"), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(charactersOf("e\u0301x"), (Pieces{"e\u0301", "x"}));
    EXPECT_EQ(charactersOf("👨‍👩‍👧‍👦🇩🇪🇫🇷👍🏽"),
        (Pieces{"👨‍👩‍👧‍👦", "🇩🇪", "🇫🇷", "👍🏽"}));
    EXPECT_EQ(charactersOf("각"), Pieces{"각"});
    EXPECT_EQ(charactersOf("a\r\nb\n"), (Pieces{"a", "\r\n", "b", "\n"}));
    EXPECT_EQ(charactersOf("\r\n"), Pieces{"\r\n"});
    EXPECT_EQ(charactersOf(std::string_view("a\0b", 3)), (Pieces{"a", std::string(1, '\0'), "b"}));
}

TEST(Text, hasCharactersThatCoverItWhateverItsBytes)
{
    for (const auto* text : {"\xFF\xFE", "a\xC3", "\xC3\xC3\xA9", "\xED\xA0\x80", "é\x80\x80漢",
             "\xCC\x81", "\xF0\x9F\x8E"}) {
        std::string joined;
        for (const auto& character : characters(text)) {
            EXPECT_FALSE(character.empty());
            joined += character;
        }
        EXPECT_EQ(joined, text);
    }
    const auto marks = "a" + utf8(std::u32string(100'000, 0x301));
    EXPECT_EQ(characters(marks).size(), 1u);
}

TEST(Text, knowsWhiteSpaceLettersAndNumbersOfAnyScript)
{
    for (const char32_t scalar : {U' ', U'\n', U'\u00A0', U'\u3000', U'\u2028', U'\u0085'})
        EXPECT_TRUE(isWhiteSpace(scalar)) << std::hex << static_cast<unsigned>(scalar);
    for (const char32_t scalar : {U'a', U'\u200B', U'\0', U'\uFEFF', char32_t{0x110000}})
        EXPECT_FALSE(isWhiteSpace(scalar)) << std::hex << static_cast<unsigned>(scalar);

    for (const char32_t scalar : {U'a', U'Z', U'é', U'漢', U'あ', U'ж', U'ب', U'한', U'ª'})
        EXPECT_TRUE(isLetter(scalar)) << std::hex << static_cast<unsigned>(scalar);
    for (const char32_t scalar : {U'1', U' ', U'-', U'🎛', U'。', U'\0', char32_t{0xFFFFFFFF}})
        EXPECT_FALSE(isLetter(scalar)) << std::hex << static_cast<unsigned>(scalar);

    for (const char32_t scalar : {U'0', U'9', U'٣', U'Ⅷ', U'½', U'〇', U'９'})
        EXPECT_TRUE(isNumber(scalar)) << std::hex << static_cast<unsigned>(scalar);
    for (const char32_t scalar : {U'a', U'漢', U'.', U'🎛', char32_t{0x110000}})
        EXPECT_FALSE(isNumber(scalar)) << std::hex << static_cast<unsigned>(scalar);

    for (const char32_t scalar : {U'a', U'漢', U'7', U'Ⅷ', U'\u0301', U'\u0903', U'\u20DD'})
        EXPECT_TRUE(isAlphanumeric(scalar)) << std::hex << static_cast<unsigned>(scalar);
    for (const char32_t scalar : {U' ', U'_', U'.', U'ⓐ', U'🎛', U'\0', char32_t{0x110000}})
        EXPECT_FALSE(isAlphanumeric(scalar)) << std::hex << static_cast<unsigned>(scalar);
}

TEST(Text, isNothingInPlaceOfAnEmptyOne)
{
    EXPECT_EQ(unlessEmpty(""), std::nullopt);
    EXPECT_EQ(unlessEmpty(" "), " ");
    EXPECT_EQ(unlessEmpty(std::string(1, '\0')), std::string(1, '\0'));
    EXPECT_EQ(unlessEmpty("é"), "é");
}

TEST(Text, knowsWhatAHexadecimalDigitStandsFor)
{
    const std::string upper = "0123456789ABCDEF";
    const std::string lower = "0123456789abcdef";
    for (int byte = 0; byte < 256; ++byte) {
        const auto digit = static_cast<char>(byte);
        const auto place = std::min(upper.find(digit), lower.find(digit));
        const auto expected = place == std::string::npos
            ? std::nullopt
            : std::optional(static_cast<std::uint8_t>(place));
        EXPECT_EQ(hexDigitValue(digit), expected) << byte;
    }
}

} // namespace
} // namespace brindlex
