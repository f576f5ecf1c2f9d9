#include "inputmethod/TruncatedHUDLabel.h"

#include "foundation/Text.h"

#include <gtest/gtest.h>

#include <tuple>

namespace brindlex {
namespace {

std::string repeated(char32_t scalar, std::size_t count)
{
    return utf8(std::u32string(count, scalar));
}

/// The cost of a scalar, told by how many of it fit before ASCII fills the rest of the 60.
int measuredCost(char32_t scalar)
{
    const auto fits = [&](std::size_t ascii) {
        const auto label = repeated(scalar, 1) + std::string(ascii, 'a');
        return truncatedHUDLabel(label) == label;
    };
    std::size_t ascii = 0;
    while (fits(ascii + 1))
        ++ascii;
    return 60 - 3 * static_cast<int>(ascii);
}

TEST(TruncatedHUDLabel, leavesShortTextAlone)
{
    EXPECT_EQ(truncatedHUDLabel(""), "");
    EXPECT_EQ(truncatedHUDLabel("U.S."), "U.S.");
    EXPECT_EQ(truncatedHUDLabel("简体拼音"), "简体拼音");
}

TEST(TruncatedHUDLabel, holdsTwentyAsciiCharacters)
{
    EXPECT_EQ(truncatedHUDLabel("abcdefghijklmnopqrst"), "abcdefghijklmnopqrst");
    EXPECT_EQ(truncatedHUDLabel("abcdefghijklmnopqrstu"), "abcdefghijklmnopqrst...");
}

TEST(TruncatedHUDLabel, holdsSixWideCharacters)
{
    EXPECT_EQ(truncatedHUDLabel("一二三四五六"), "一二三四五六");
    EXPECT_EQ(truncatedHUDLabel("一二三四五六七"), "一二三四五六...");
}

TEST(TruncatedHUDLabel, holdsTenOtherCharacters)
{
    EXPECT_EQ(truncatedHUDLabel("абвгдежзий"), "абвгдежзий");
    EXPECT_EQ(truncatedHUDLabel("абвгдежзийк"), "абвгдежзий...");
}

TEST(TruncatedHUDLabel, addsTheCostsOfMixedText)
{
    EXPECT_EQ(truncatedHUDLabel("一二三四五abc"), "一二三四五abc");
    EXPECT_EQ(truncatedHUDLabel("一二三四五abcd"), "一二三四五abc...");
    EXPECT_EQ(truncatedHUDLabel("一二三四五жa"), "一二三四五жa");
    EXPECT_EQ(truncatedHUDLabel("一二三四五жж"), "一二三四五ж...");
}

TEST(TruncatedHUDLabel, cutsBeforeTheFirstCharacterThatDoesNotFit)
{
    // The ASCII letter behind the ideograph would still fit.
    EXPECT_EQ(truncatedHUDLabel("abcdefghijklmnopqr一a"), "abcdefghijklmnopqr...");
}

TEST(TruncatedHUDLabel, countsScalarsNotCharacters)
{
    EXPECT_EQ(truncatedHUDLabel("aaaaaaaaaaaaaaaaaaae\u0301"), "aaaaaaaaaaaaaaaaaaae...");
}

class TruncatedHUDLabelCost : public testing::TestWithParam<std::tuple<char32_t, char32_t>> { };

TEST_P(TruncatedHUDLabelCost, isTenFromTheFirstToTheLastOfAWideRange)
{
    // 10 is told from 6 as 16 letters fit beside it and not 18.
    const auto [first, last] = GetParam();
    EXPECT_EQ(measuredCost(first), 12) << "rounded up to the cost of whole letters";
    EXPECT_EQ(measuredCost(last), 12);
    EXPECT_EQ(measuredCost(first - 1), 6);
    EXPECT_EQ(measuredCost(last + 1), 6);
}

INSTANTIATE_TEST_SUITE_P(Ranges, TruncatedHUDLabelCost,
    testing::Values(std::tuple{U'\x1100', U'\x11FF'}, std::tuple{U'\x2E80', U'\xA4CF'},
        std::tuple{U'\xAC00', U'\xD7AF'}, std::tuple{U'\xF900', U'\xFAFF'},
        std::tuple{U'\xFE10', U'\xFE19'}, std::tuple{U'\xFE30', U'\xFE6F'},
        std::tuple{U'\xFF00', U'\xFF60'}, std::tuple{U'\xFFE0', U'\xFFE6'}));

TEST(TruncatedHUDLabel, tellsTenFromEveryOtherCost)
{
    const auto three = repeated(U'一', 3);
    EXPECT_EQ(truncatedHUDLabel(three + "aaaaaaaaaa"), three + "aaaaaaaaaa");
    EXPECT_EQ(truncatedHUDLabel(three + "aaaaaaaaaaa"), three + "aaaaaaaaaa...");
}

TEST(TruncatedHUDLabel, takesAsciiUpToTheLastOne)
{
    EXPECT_EQ(measuredCost(U'\x00'), 3);
    EXPECT_EQ(measuredCost(U'\x7F'), 3);
    EXPECT_EQ(measuredCost(U'\x80'), 6);
    EXPECT_EQ(measuredCost(U'\x10FFFF'), 6);
    EXPECT_EQ(measuredCost(U'\x1F600'), 6);
    EXPECT_EQ(measuredCost(U'\x20000'), 6) << "beyond the ranges, although an ideograph";
}

TEST(TruncatedHUDLabel, survivesBytesThatAreNotTextAndAMegabyte)
{
    EXPECT_EQ(truncatedHUDLabel("a\xFF"), "a\uFFFD");
    EXPECT_EQ(truncatedHUDLabel(std::string(1024 * 1024, 'a')), "aaaaaaaaaaaaaaaaaaaa...");
    EXPECT_EQ(truncatedHUDLabel(std::string(1024 * 1024, '\xFF')), repeated(0xFFFD, 10) + "...");
}

} // namespace
} // namespace brindlex
