#include "platform/linux/panels/OpenWindow.h"

#include "foundation/Text.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

WindowLabel label(const std::string& title, const std::string& application = "Editor")
{
    return labelOf({0x1400003, title, application});
}

TEST(OpenWindow, isCalledByItsTitleAndItsApplication)
{
    EXPECT_EQ(label("Letter"), (WindowLabel{"Letter", "Editor"}));
    EXPECT_EQ(label("季度报告", "文档"), (WindowLabel{"季度报告", "文档"}));
}

TEST(OpenWindow, isCalledByItsApplicationWhenItHasNoTitle)
{
    EXPECT_EQ(label(""), (WindowLabel{"Editor", ""}));
    EXPECT_EQ(label(" \t\n"), (WindowLabel{"Editor", ""}));
}

TEST(OpenWindow, isCalledByItsNumberWhenItSaysNothing)
{
    EXPECT_EQ(label("", ""), (WindowLabel{"0x1400003", ""}));
}

TEST(OpenWindow, saysNothingTwice) { EXPECT_EQ(label("Editor"), (WindowLabel{"Editor", ""})); }

TEST(OpenWindow, isOnOneLine)
{
    EXPECT_EQ(label("\n one\r\n\ttwo\x01 \u2028three\u0085 ").title, "one two three");
}

TEST(OpenWindow, turnsAroundNoTextBesideIt)
{
    EXPECT_EQ(label("\u202Egpj.exe\u2066 שלום").title, "gpj.exe שלום");
}

TEST(OpenWindow, cutsOffATitleOfHostileLength)
{
    std::string title;
    for (int count = 0; count < 100'000; ++count)
        title += "字";

    const auto shown = characters(label(title).title).size();

    EXPECT_EQ(shown, 257U);
    EXPECT_TRUE(label(title).title.ends_with("字…"));
    EXPECT_EQ(label(title.substr(0, 256 * 3)).title, title.substr(0, 256 * 3));
}

TEST(OpenWindow, replacesBytesThatAreNoText)
{
    EXPECT_EQ(label("a\xff\xfe"), (WindowLabel{"a\uFFFD\uFFFD", "Editor"}));
}

} // namespace
} // namespace brindlex
