#include "clipboard/views/ClipboardAgeWords.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Unit = ClipboardAge::Unit;

std::string words(Unit unit, std::int64_t count, const std::string& language)
{
    return ageInWords({unit, count}, language).toStdString();
}

TEST(ClipboardAgeWords, sayHowLongAgo)
{
    EXPECT_EQ(words(Unit::seconds, 59, "en"), "now");
    EXPECT_EQ(words(Unit::minutes, 1, "en"), "1 min. ago");
    EXPECT_EQ(words(Unit::hours, 23, "en"), "23 hr. ago");
    EXPECT_EQ(words(Unit::days, 1, "en"), "1 day ago");
    EXPECT_EQ(words(Unit::days, 400, "en"), "400 days ago");
}

TEST(ClipboardAgeWords, areThoseOfTheLanguage)
{
    EXPECT_EQ(words(Unit::seconds, 0, "de"), "jetzt");
    EXPECT_EQ(words(Unit::minutes, 5, "de"), "vor 5 Min.");
    EXPECT_EQ(words(Unit::minutes, 5, "zh-Hans"), "5分钟前");
    EXPECT_EQ(words(Unit::days, 2, "zh-Hant"), "2 天前");
    EXPECT_EQ(words(Unit::hours, 2, "ja"), "2 時間前");
    EXPECT_EQ(words(Unit::days, 3, "ko"), "3일 전");
    EXPECT_EQ(words(Unit::minutes, 5, "fr"), "il y a 5\u00A0min");
    EXPECT_EQ(words(Unit::minutes, 5, "es"), "hace 5 min");
}

} // namespace
} // namespace brindlex
