#include "catalogue/TimeWords.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr auto utc = "Etc/UTC";
constexpr Seconds minute = 60;
constexpr Seconds hour = 60 * minute;
constexpr Seconds day = 24 * hour;

const Date noon = dateFromISO8601("2026-11-22T12:00:00Z").value();

std::string words(Date time, const std::string& language)
{
    return timeInWords(time, noon, language, utc);
}

TEST(TimeWords, sayWhatTheClockShowedToday)
{
    EXPECT_EQ(words(noon - 11 * hour - 5 * minute, "de"), "heute, 00:55");
    EXPECT_EQ(words(noon + 11 * hour, "fr"), "aujourd’hui, 23:00");
    EXPECT_EQ(words(noon, "es"), "hoy, 12:00");
    EXPECT_EQ(words(noon, "ja"), "今日 12:00");
    EXPECT_EQ(words(noon, "zh-Hans"), "今天 12:00");
}

TEST(TimeWords, countTheHoursAsTheLanguageDoes)
{
    const auto evening = words(noon + 2 * hour, "en");

    EXPECT_TRUE(evening.starts_with("today, 2:00")) << evening;
    EXPECT_TRUE(evening.ends_with("PM")) << evening;
    EXPECT_EQ(words(noon + 2 * hour, "ko"), "오늘 오후 2:00");
    EXPECT_EQ(words(noon + 2 * hour, "zh-Hant"), "今天 下午2:00");
}

TEST(TimeWords, nameYesterday)
{
    EXPECT_EQ(words(noon - 13 * hour, "en"), "yesterday");
    EXPECT_EQ(words(noon - 36 * hour, "de"), "gestern");
    EXPECT_EQ(words(noon - day, "zh-Hant"), "昨天");
}

TEST(TimeWords, giveTheDateOfAnyOtherDay)
{
    EXPECT_EQ(words(noon - 2 * day, "en"), "Nov 20, 2026");
    EXPECT_EQ(words(noon - 2 * day, "de"), "20.11.2026");
    EXPECT_EQ(words(noon + day, "zh-Hans"), "2026年11月23日") << "the clock was set back";
}

TEST(TimeWords, takeTheDaysOfTheTimeZone)
{
    const auto lateAtNight = noon - 12 * hour - 30 * minute;

    EXPECT_EQ(timeInWords(lateAtNight, noon, "de", utc), "gestern");
    EXPECT_EQ(timeInWords(lateAtNight, noon, "de", "Europe/Berlin"), "heute, 00:30");
}

TEST(TimeWords, knowTheTimeZoneOfTheComputer)
{
    EXPECT_NE(localTimeZone(), "");
    EXPECT_NE(localTimeZone(), "Etc/Unknown");
}

} // namespace
} // namespace brindlex
