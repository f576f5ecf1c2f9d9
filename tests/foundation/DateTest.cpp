#include "foundation/Date.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace brindlex {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Date, countsFromTheBeginningOf2001)
{
    EXPECT_EQ(Date{}.unixTime(), 978'307'200);
    EXPECT_EQ(Date::fromUnixTime(978'307'200), Date{0});
    EXPECT_EQ(iso8601(Date{0}), "2001-01-01T00:00:00.000Z");
    EXPECT_EQ(iso8601(Date::fromUnixTime(0)), "1970-01-01T00:00:00.000Z");
}

TEST(Date, isMovedAndMeasuredInSeconds)
{
    EXPECT_EQ(Date{10} + 2.5, Date{12.5});
    EXPECT_EQ(Date{10} - 2.5, Date{7.5});
    EXPECT_EQ(Date{10} - Date{12}, -2.0);
    EXPECT_LT(Date{1}, Date{2});
}

TEST(Date, isWrittenInUtcWithMilliseconds)
{
    EXPECT_EQ(iso8601(Date::fromUnixTime(1'794'795'385.123)), "2026-11-16T02:16:25.123Z");
    EXPECT_EQ(iso8601(Date::fromUnixTime(951'782'400)), "2000-02-29T00:00:00.000Z");
    EXPECT_EQ(iso8601(Date::fromUnixTime(951'868'799.999)), "2000-02-29T23:59:59.999Z");
    EXPECT_EQ(iso8601(Date::fromUnixTime(4'107'542'399)), "2100-02-28T23:59:59.000Z");
    EXPECT_EQ(iso8601(Date::fromUnixTime(4'107'542'400)), "2100-03-01T00:00:00.000Z");
}

TEST(Date, hasItsMillisecondsCutOffNotRounded)
{
    EXPECT_EQ(iso8601(Date{0.9996}), "2001-01-01T00:00:00.999Z");
    EXPECT_EQ(iso8601(Date{0.0009}), "2001-01-01T00:00:00.000Z");
    EXPECT_EQ(iso8601(Date{-0.0005}), "2000-12-31T23:59:59.999Z");
    EXPECT_EQ(iso8601(Date{-1}), "2000-12-31T23:59:59.000Z");
}

TEST(Date, keepsEachMillisecondThroughItsText)
{
    for (int millisecond = 0; millisecond < 1'000; ++millisecond) {
        const Date date = Date::fromUnixTime(1'794'795'385 + millisecond / 1000.0);
        const auto text = iso8601(date);
        ASSERT_EQ(std::stoi(text.substr(20, 3)), millisecond);
        ASSERT_EQ(iso8601(dateFromISO8601(text).value()), text);
    }
}

TEST(Date, keepsEachMillisecondOfDatesFarAway)
{
    for (const std::string second : {"0001-01-01T00:00:00", "1582-10-15T12:34:56",
             "1900-01-01T00:00:00", "1969-12-31T23:59:59", "2001-01-01T00:00:00",
             "2244-05-06T07:08:09", "2999-12-31T23:59:59", "9999-12-31T23:59:59"})
        for (int millisecond = 0; millisecond < 1'000; ++millisecond) {
            const auto digits = std::to_string(1'000 + millisecond).substr(1);
            const auto text = second + "." + digits + "Z";
            ASSERT_EQ(iso8601(dateFromISO8601(text).value()), text);
        }
}

TEST(Date, isWrittenAsTheNearestThatHasAForm)
{
    const std::string first = "0001-01-01T00:00:00.000Z";
    const std::string last = "9999-12-31T23:59:59.999Z";
    EXPECT_EQ(iso8601(Date::fromUnixTime(-62'135'596'800)), first);
    EXPECT_EQ(iso8601(Date::fromUnixTime(-62'135'596'801)), first);
    EXPECT_EQ(iso8601(Date{-1e300}), first);
    EXPECT_EQ(iso8601(Date{-infinity}), first);
    EXPECT_EQ(iso8601(Date{std::nan("")}), first);
    EXPECT_EQ(iso8601(Date::fromUnixTime(253'402'300'799.999)), last);
    EXPECT_EQ(iso8601(Date::fromUnixTime(253'402'300'800)), last);
    EXPECT_EQ(iso8601(Date{1e300}), last);
    EXPECT_EQ(iso8601(Date{infinity}), last);
}

TEST(Date, isReadWithAnyNumberOfFractionalDigits)
{
    EXPECT_EQ(dateFromISO8601("2001-01-01T00:00:01Z"), Date{1});
    EXPECT_EQ(dateFromISO8601("2001-01-01T00:00:01.5Z"), Date{1.5});
    EXPECT_EQ(dateFromISO8601("2001-01-01T00:00:01.50000000000000000000000Z"), Date{1.5});
    EXPECT_EQ(dateFromISO8601("2000-02-29T23:59:59Z"), Date::fromUnixTime(951'868'799));
    EXPECT_EQ(dateFromISO8601("0001-01-01T00:00:00Z"), Date::fromUnixTime(-62'135'596'800));
    EXPECT_EQ(dateFromISO8601("9999-12-31T23:59:59Z"), Date::fromUnixTime(253'402'300'799));
    EXPECT_EQ(dateFromISO8601("0000-03-01T00:00:00Z"), Date::fromUnixTime(-62'162'035'200));
    EXPECT_TRUE(dateFromISO8601("2001-01-01T00:00:01." + std::string(100'000, '9') + "Z"));
}

TEST(Date, isNotReadFromOtherText)
{
    for (const auto* text : {"", "Z", "2026", "2026-11-16", "2026-11-16T02:16:25",
             "2026-11-16 02:16:25Z", "2026-11-16t02:16:25Z", "2026-11-16T02:16:25z",
             "2026-11-16T02:16:25.Z", "2026-11-16T02:16:25,1Z", "2026-11-16T02:16:25.1",
             "2026-11-16T02:16:25+00:00", "2026-11-16T02:16:25ZZ", " 2026-11-16T02:16:25Z",
             "2026-11-16T02:16:25Z\n", "26-11-16T02:16:25Z", "-026-11-16T02:16:25Z",
             "+026-11-16T02:16:25Z", "2026-1-16T02:16:25Z", "2026-13-16T02:16:25Z",
             "2026-00-16T02:16:25Z", "2026-11-31T02:16:25Z", "2026-11-00T02:16:25Z",
             "2026-02-29T00:00:00Z", "2100-02-29T00:00:00Z", "2026-11-16T24:00:00Z",
             "2026-11-16T02:60:25Z", "2026-11-16T02:16:60Z", "20261116T021625Z",
             "２０２６-11-16T02:16:25Z", "2026-11-16T02:16:2"})
        EXPECT_EQ(dateFromISO8601(text), std::nullopt) << text;
    EXPECT_EQ(dateFromISO8601(std::string_view("2026-11-16T02:16:25Z\0", 21)), std::nullopt);
}

} // namespace
} // namespace brindlex
