#include "clipboard/ClipboardColourArguments.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(ClipboardColourArguments, standBetweenCommas)
{
    EXPECT_EQ(clipboardColourArguments("1,2 , 3"),
        (ClipboardColourArguments{.channels = {{1, ""}, {2, ""}, {3, ""}}, .isLegacy = true}));
    EXPECT_EQ(clipboardColourArguments(" 1%, 2deg, 3%, .5 "),
        (ClipboardColourArguments{
            .channels = {{1, "%"}, {2, "deg"}, {3, "%"}}, .alpha = {0.5, ""}, .isLegacy = true}));
}

TEST(ClipboardColourArguments, standBetweenBlanksWithTheAlphaBehindASlash)
{
    EXPECT_EQ(clipboardColourArguments("  1 2%   3rad "),
        (ClipboardColourArguments{.channels = {{1, ""}, {2, "%"}, {3, "rad"}}}));
    for (const auto* text : {"1 2 3/4%", "1 2 3 /4%", "1 2 3/ 4%", " 1 2 3 / 4% "})
        EXPECT_EQ(clipboardColourArguments(text),
            (ClipboardColourArguments{.channels = {{1, ""}, {2, ""}, {3, ""}}, .alpha = {4, "%"}}))
            << text;
    EXPECT_EQ(clipboardColourArguments("none 2 none / none"),
        (ClipboardColourArguments{
            .channels = {{0, "none"}, {2, ""}, {0, "none"}}, .alpha = {0, "none"}}));
}

TEST(ClipboardColourArguments, areNumbersAsCssWritesThem)
{
    const std::vector<std::pair<std::string, double>> numbers{{"1", 1}, {"+1", 1}, {"-1", -1},
        {".5", 0.5}, {"-.5", -0.5}, {"+.5", 0.5}, {"1.25", 1.25}, {"007", 7}, {"1e2", 100},
        {"1.5e+2", 150}, {"25e-1", 2.5}};
    for (const auto& [text, number] : numbers) {
        const auto arguments = clipboardColourArguments(text + " 0 0");
        ASSERT_TRUE(arguments) << text;
        EXPECT_EQ(arguments->channels[0], (ClipboardColourArguments::Component{number, ""}))
            << text;
    }
}

TEST(ClipboardColourArguments, areNothingElse)
{
    for (const auto* text :
        {"", " ", ",", ",,", "1,2", "1,2,3,4,5", "1,,3", "1,2,3,", "1 2", "1 2 3 4", "1 2 / 3",
            "/ 1 2 3", "1 2 3 /", "1 2 3 / 4 5 6 /", "none,2,3", "1. 2 3", "1.,2,3", "- 2 3",
            "+ 2 3", "+-1 2 3", "++1 2 3", "--1 2 3", ". 2 3", "-. 2 3", "a 2 3", "inf 2 3",
            "nan 2 3", "1e999 2 3", "% 2 3", "1.e3 2 3", "1_ 2 3", "1.5.2 2 3", "1é 2 3"})
        EXPECT_EQ(clipboardColourArguments(text), std::nullopt) << text;
}

} // namespace
} // namespace brindlex
