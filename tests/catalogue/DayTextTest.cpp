#include "catalogue/DayText.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace brindlex {
namespace {

TEST(DayText, isInTheWordsOfTheLanguage)
{
    const std::map<std::string, std::string> expected{
        {"en", "November 22, 2026"},
        {"zh-Hans", "2026年11月22日"},
        {"zh-Hant", "2026年11月22日"},
        {"ja", "2026年11月22日"},
        {"fr", "22 novembre 2026"},
        {"es", "22 de noviembre de 2026"},
        {"de", "22. November 2026"},
        {"ko", "2026년 11월 22일"},
    };
    for (const auto& [language, words] : expected)
        EXPECT_EQ(dayText(language, "2026-11-22"), words) << language;
}

TEST(DayText, isTheSameDayAtTheEndsOfAYear)
{
    EXPECT_EQ(dayText("de", "2026-01-01"), "1. Januar 2026");
    EXPECT_EQ(dayText("de", "2026-12-31"), "31. Dezember 2026");
    EXPECT_EQ(dayText("de", "2028-02-29"), "29. Februar 2028");
}

TEST(DayText, leavesWhatIsNoDay)
{
    for (const std::string text : {"", "soon", "2026-13-01", "2026-02-30"})
        EXPECT_EQ(dayText("de", text), text);
}

} // namespace
} // namespace brindlex
