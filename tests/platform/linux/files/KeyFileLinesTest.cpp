#include "platform/linux/files/KeyFileLines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

/// The lines of the group "G" in short: "H" for its header, a key with its value, "-" for others.
std::string linesOf(std::string_view text)
{
    std::string found;
    std::string whole;
    KeyFileLines lines(text, "G");
    while (const auto line = lines.next()) {
        whole += line->whole;
        found += line->isHeader ? "H "
            : line->key.empty() ? "- "
                                : std::string(line->key) + ":" + std::string(line->value) + " ";
    }
    EXPECT_EQ(whole, text) << "the lines are all of the text";
    return found;
}

TEST(KeyFileLines, areKeysOfTheGroupAlone)
{
    EXPECT_EQ(linesOf("a=1\n[F]\na=2\n[G]\na=3\n#b=4\n\n c = 5 = 6 \r\n[F]\na=7"),
        "- - - H a:3 - - c:5 = 6 - - ");
    EXPECT_EQ(linesOf("[G]\na=1\n[G]\nb=2\n"), "H a:1 - - ") << "the first group counts";
}

TEST(KeyFileLines, areNoKeysWithoutAGroupANameOrAValue)
{
    EXPECT_EQ(linesOf(""), "");
    EXPECT_EQ(linesOf("[G\na=1\n"), "- - ");
    EXPECT_EQ(linesOf("[]\n[\n[G]x\n[GG]\na=1"), "- - - - - ");
    EXPECT_EQ(linesOf("[G]\n=1\na\nb=\n\xFF=\xFE"), "H - - b: \xFF:\xFE ");
}

TEST(keyFileValue, isThatOfTheLastKeyInTheGroup)
{
    constexpr auto text = "[F]\na=1\n[G]\na=2\nb=\na=3\n";
    EXPECT_EQ(keyFileValue(text, "F", "a"), "1");
    EXPECT_EQ(keyFileValue(text, "G", "a"), "3");
    EXPECT_EQ(keyFileValue(text, "G", "b"), "");
    EXPECT_EQ(keyFileValue(text, "G", "c"), std::nullopt);
    EXPECT_EQ(keyFileValue(text, "G", ""), std::nullopt);
    EXPECT_EQ(keyFileValue(text, "", "a"), std::nullopt);
    EXPECT_EQ(keyFileValue("", "F", "a"), std::nullopt);
}

} // namespace
} // namespace brindlex
