#include "shell/SemanticVersion.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

SemanticVersion versionOf(const std::string& text)
{
    const auto read = SemanticVersion::fromText(text);
    EXPECT_TRUE(read) << text;
    return read.value_or(SemanticVersion{});
}

TEST(SemanticVersion, hasAllParts)
{
    EXPECT_EQ(SemanticVersion::fromText("1.20.300-beta.2.x-y+build.007"),
        (SemanticVersion{1, 20, 300, {"beta", "2", "x-y"}, "build.007"}));
    EXPECT_EQ(SemanticVersion::fromText("0.0.0"), SemanticVersion());
    EXPECT_EQ(SemanticVersion::fromText("18446744073709551615.0.0").value().major,
        18'446'744'073'709'551'615U);
}

TEST(SemanticVersion, isReadAsWritten)
{
    for (const std::string text : {"0.1.0", "1.0.0-alpha", "1.0.0-0.3.7", "1.0.0-x-y-z.--",
             "1.0.0+20130313144700", "1.0.0-beta+exp.sha.5114f85", "1.0.0+21AF26D3----117B"})
        EXPECT_EQ(versionOf(text).text(), text);
}

TEST(SemanticVersion, isNoOtherText)
{
    for (const auto* text :
        {"", "1", "1.0", "1.0.0.0", "v1.0.0", "1.0.0 ", " 1.0.0", "1..0", "01.0.0", "1.00.0",
            "1.0.0-", "1.0.0-01", "1.0.0-a..b", "1.0.0-ä", "1.0.0+", "1.0.0+a..b", "1.0.0+a+b",
            "-1.0.0", "+1.0.0", "1.0.x", "0x1.0.0", "18446744073709551616.0.0"})
        EXPECT_EQ(SemanticVersion::fromText(text), std::nullopt) << text;
    EXPECT_EQ(SemanticVersion::fromText(std::string_view("1.0.0\0", 6)), std::nullopt);
}

TEST(SemanticVersion, precedesAllThatStandBehindIt)
{
    // The orders of section 11 of the standard, in one.
    const std::vector<std::string> order{"0.9.9", "1.0.0-1", "1.0.0-9", "1.0.0-10",
        "1.0.0-99999999999999999999", "1.0.0-alpha", "1.0.0-alpha.1", "1.0.0-alpha.beta",
        "1.0.0-beta", "1.0.0-beta.2", "1.0.0-beta.11", "1.0.0-rc.1", "1.0.0", "1.0.1", "1.9.0",
        "1.10.0", "2.0.0", "2.1.0", "2.1.1"};
    for (std::size_t first = 0; first < order.size(); ++first)
        for (std::size_t second = 0; second < order.size(); ++second)
            EXPECT_EQ(precedes(versionOf(order[first]), versionOf(order[second])), first < second)
                << order[first] << " " << order[second];
}

TEST(SemanticVersion, hasNoPrecedenceByItsBuild)
{
    EXPECT_FALSE(precedes(versionOf("1.0.0+1"), versionOf("1.0.0+2")));
    EXPECT_FALSE(precedes(versionOf("1.0.0+2"), versionOf("1.0.0+1")));
}

} // namespace
} // namespace brindlex
