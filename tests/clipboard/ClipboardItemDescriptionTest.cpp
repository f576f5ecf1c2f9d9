#include "clipboard/ClipboardItemDescription.h"

#include "foundation/Text.h"
#include "support/clipboard/ClipboardRecords.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

ClipboardItemDescription::Text textDescription(const std::string& text)
{
    return std::get<ClipboardItemDescription::Text>(clipboardItemDescription(textItem(text)));
}

std::string lineOf(const std::string& text) { return textDescription(text).line; }

ClipboardItemDescription::Files filesDescription(const std::vector<std::string>& paths)
{
    return std::get<ClipboardItemDescription::Files>(clipboardItemDescription(fileItem(paths)));
}

std::string repeated(const std::string& text, std::size_t times)
{
    std::string all;
    for (std::size_t time = 0; time < times; ++time)
        all += text;
    return all;
}

TEST(ClipboardItemDescription, isTheTextInOneLine)
{
    EXPECT_EQ(textDescription("hello"), (ClipboardItemDescription::Text{"hello", {}}));
    EXPECT_EQ(lineOf("\n  a\t\tb \r\n\r\n c\u00A0\u2003d\u2029e  \n"), "a b c d e");
    EXPECT_EQ(lineOf(std::string("a\0b\x1B[1mc\x7F"
                                 "d",
                  10)),
        "a b [1mc d");
}

TEST(ClipboardItemDescription, isEmptyWhereNothingIsToBeSeen)
{
    EXPECT_EQ(lineOf(""), "");
    EXPECT_EQ(lineOf(" \n\t\r\n "), "");
    auto bare = textItem("text");
    bare.text.reset();
    EXPECT_EQ(clipboardItemDescription(bare),
        ClipboardItemDescription::Any(ClipboardItemDescription::Text{}));
}

TEST(ClipboardItemDescription, hasTwoHundredCharactersAtTheMost)
{
    const auto whole = std::string(200, 'x');
    EXPECT_EQ(lineOf(whole), whole);
    EXPECT_EQ(lineOf(whole + "  \n"), whole);
    EXPECT_EQ(lineOf(whole + "y"), std::string(199, 'x') + "…");
    const std::string family = "👩‍👩‍👧";
    EXPECT_EQ(lineOf(repeated(family, 200)), repeated(family, 200));
    EXPECT_EQ(lineOf(repeated(family, 201)), repeated(family, 199) + "…");
    EXPECT_EQ(lineOf(repeated("e\u0301", 300)), repeated("e\u0301", 199) + "…");
}

TEST(ClipboardItemDescription, isBoundedForACharacterWithoutEnd)
{
    const auto line = lineOf("a" + repeated("\u0301", 100'000));
    EXPECT_TRUE(line.ends_with("…"));
    EXPECT_LT(line.size(), 9'000U);
    EXPECT_TRUE(isWellFormed(line));
}

TEST(ClipboardItemDescription, readsTheBeginningOfALongTextOnly)
{
    EXPECT_EQ(lineOf(repeated("word ", 100'000)), repeated("word ", 39) + "word…");
    EXPECT_EQ(lineOf(std::string(5'000'000, ' ') + "far"), "…");
    EXPECT_EQ(lineOf(std::string(60'000, '\n') + "near"), "near");
}

TEST(ClipboardItemDescription, isWellFormedWhateverTheTextIs)
{
    EXPECT_EQ(lineOf("a\xFF\xC3"), "a\uFFFD\uFFFD");
    for (std::size_t length = 8'180; length < 8'200; ++length)
        EXPECT_TRUE(isWellFormed(lineOf("a" + repeated("\u0301", length / 2) + "日本語")));
    std::mt19937 random(3);
    for (int round = 0; round < 1'000; ++round) {
        std::string text;
        for (auto size = random() % 1'000; size > 0; --size)
            text += static_cast<char>(random() % 256);
        const auto line = lineOf(text);
        EXPECT_TRUE(isWellFormed(line));
        EXPECT_LE(characters(line).size(), longestClipboardLine);
    }
}

TEST(ClipboardItemDescription, hasTheColourOfATextThatIsOne)
{
    EXPECT_EQ(textDescription(" #ff8000 \n"),
        (ClipboardItemDescription::Text{"#ff8000", ClipboardColour{255, 128, 0}}));
}

TEST(ClipboardItemDescription, isMerelyAPicture)
{
    EXPECT_EQ(clipboardItemDescription(imageItem()),
        ClipboardItemDescription::Any(ClipboardItemDescription::Picture{}));
}

TEST(ClipboardItemDescription, isTheNameAndTheFolderOfAFile)
{
    EXPECT_EQ(filesDescription({"/home/user/a b.txt"}),
        (ClipboardItemDescription::Files{"a b.txt", "/home/user", 1}));
    EXPECT_EQ(filesDescription({"/home/user/folder//"}),
        (ClipboardItemDescription::Files{"folder", "/home/user", 1}));
    EXPECT_EQ(filesDescription({"/file"}), (ClipboardItemDescription::Files{"file", "/", 1}));
    EXPECT_EQ(filesDescription({"/"}), (ClipboardItemDescription::Files{"/", "", 1}));
    EXPECT_EQ(filesDescription({"file"}), (ClipboardItemDescription::Files{"file", "", 1}));
    EXPECT_EQ(filesDescription({"/home/.hidden"}),
        (ClipboardItemDescription::Files{".hidden", "/home", 1}));
}

TEST(ClipboardItemDescription, isTheFirstOfSeveralFilesAndTheirNumber)
{
    EXPECT_EQ(filesDescription({"/b", "/a", "/c"}), (ClipboardItemDescription::Files{"b", "/", 3}));
}

TEST(ClipboardItemDescription, keepsNamesInOneLine)
{
    EXPECT_EQ(filesDescription({"/a\nb/c\r\nd\xFF"}),
        (ClipboardItemDescription::Files{"c d\uFFFD", "/a b", 1}));
    EXPECT_EQ(filesDescription({"/" + std::string(300, 'x')}).name, std::string(199, 'x') + "…");
}

TEST(ClipboardItemDescription, isOfNoFileWithoutAPath)
{
    EXPECT_EQ(filesDescription({}), ClipboardItemDescription::Files{});
    EXPECT_EQ(filesDescription({""}), (ClipboardItemDescription::Files{"", "", 1}));
    auto bare = fileItem({"/a"});
    bare.fileURLStrings.reset();
    EXPECT_EQ(clipboardItemDescription(bare),
        ClipboardItemDescription::Any(ClipboardItemDescription::Files{}));
}

} // namespace
} // namespace brindlex
