#include "platform/linux/accessibility/TitleMatch.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(TitleMatch, isSameForEqualTexts)
{
    EXPECT_EQ(titleMatch("Page - Chromium", "Page - Chromium"), TitleMatch::same);
    EXPECT_EQ(titleMatch("", ""), TitleMatch::same);
}

TEST(TitleMatch, isSimilarWhenABrowserAddsToTheName)
{
    EXPECT_EQ(
        titleMatch("Song - Chromium", "Song - Audio playing - Chromium"), TitleMatch::similar);
    EXPECT_EQ(titleMatch("Page - Chromium", "Page - Chromium (Incognito)"), TitleMatch::similar);
    EXPECT_EQ(titleMatch("Page — Mozilla Firefox", "Page — Mozilla Firefox Private Browsing"),
        TitleMatch::similar);
    EXPECT_EQ(titleMatch("A - B - Chromium", "A - B"), TitleMatch::similar);
}

TEST(TitleMatch, isNoneForAnotherPage)
{
    EXPECT_EQ(titleMatch("New Tab - Chromium", "Page B - Chromium"), TitleMatch::none);
    EXPECT_EQ(titleMatch("Page - Chromium", "Page B - Chromium"), TitleMatch::none);
    EXPECT_EQ(titleMatch("Page - Chromium", ""), TitleMatch::none);
    EXPECT_EQ(titleMatch("", "Page - Chromium"), TitleMatch::none);
    EXPECT_EQ(titleMatch(" - Chromium", "Page - Chromium"), TitleMatch::none);
}

TEST(TitleMatch, comparesBytesThatAreNotText)
{
    EXPECT_EQ(titleMatch("\xff - \xfe", "\xff - \xfd"), TitleMatch::similar);
    EXPECT_EQ(titleMatch("\xff", "\xfe"), TitleMatch::none);
}

} // namespace
} // namespace brindlex
