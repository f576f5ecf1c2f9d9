#include "shell/UpdateFeed.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// A feed with these texts of JSON for its values.
std::string feedWith(
    const std::string& version, const std::string& date, const std::string& address)
{
    return R"({"version":)" + version + R"(,"date":)" + date + R"(,"notes":"New:\n– ü","address":)"
        + address + "}";
}

JsonProblem problemOfFeed(const std::string& text)
{
    const auto decoded = decodeUpdateFeed(text);
    EXPECT_FALSE(decoded) << text;
    return decoded ? JsonProblem{} : decoded.error();
}

JsonProblem problemOfAddress(const std::string& address)
{
    return problemOfFeed(feedWith(R"("1.0.0")", R"("2026-11-22")", "\"" + address + "\""));
}

TEST(UpdateFeed, hasTheNewestVersion)
{
    const auto decoded = decodeUpdateFeed(feedWith(
        R"("1.2.0-beta.1")", R"("2026-11-22")", R"("https://brindlex.example/get?v=1#top")"));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(*decoded,
        (UpdateFeed{{1, 2, 0, {"beta", "1"}, ""}, "2026-11-22", "New:\n– ü",
            "https://brindlex.example/get?v=1#top"}));
    EXPECT_EQ(decodeUpdateFeed(encodeUpdateFeed(*decoded)), decoded);
}

TEST(UpdateFeed, mayDoWithoutDateAndNotesAndHaveMore)
{
    const auto decoded = decodeUpdateFeed(
        R"({"more":[1],"version":"1.0.0","notes":null,"address":"HTTPS://brindlex.example"})");
    ASSERT_TRUE(decoded);
    EXPECT_EQ(*decoded, (UpdateFeed{{1, 0, 0, {}, ""}, "", "", "HTTPS://brindlex.example"}));
}

TEST(UpdateFeed, isNoOtherDocument)
{
    for (const auto* text : {"", "nonsense", "<html></html>", "[]", "null", "1", "{", "\xff"})
        problemOfFeed(text);
    EXPECT_EQ(problemOfFeed("{}"), (JsonProblem{"version", "is missing"}));
    EXPECT_EQ(problemOfFeed(R"({"version":"1.0.0"})"), (JsonProblem{"address", "is missing"}));
    EXPECT_EQ(problemOfFeed(R"({"version":"1.0.0","address":"https://a.example","notes":1})"),
        (JsonProblem{"notes", "is not text"}));
    problemOfFeed(std::string(60'000, '['));
}

TEST(UpdateFeed, hasAVersionThatCanBeCompared)
{
    for (const auto* version : {"1", "null", R"("")", R"("1.0")", R"("newest")"})
        EXPECT_EQ(problemOfFeed(feedWith(version, R"("2026-11-22")", R"("https://a.example")")),
            (JsonProblem{"version", "is not a semantic version"}));
}

TEST(UpdateFeed, hasADayOfTheCalendar)
{
    for (const auto* date : {"2026-02-29", "2026-13-01", "2026-00-10", "2026-11-31", "2026-11-0x",
             "22.11.2026", "2026-11-22T00:00", "2026/11/22", " "})
        EXPECT_EQ(problemOfFeed(feedWith(
                      R"("1.0.0")", "\"" + std::string(date) + "\"", R"("https://a.example")")),
            (JsonProblem{"date", "is not a day"}));
    EXPECT_TRUE(
        decodeUpdateFeed(feedWith(R"("1.0.0")", R"("2024-02-29")", R"("https://a.example")")));
}

TEST(UpdateFeed, leadsToNoPlaceButASecureOne)
{
    for (const std::string address : {"", "http://a.example", "https:a.example", "https://",
             "https:///path", "https://?q", "file:///etc/passwd", "javascript:alert(1)",
             "//a.example", "a.example", " https://a.example", "https://a.example/ b",
             "https://brindlex.example@b.example", "https://a.example\\\\b", "https://ä.example",
             "https://a.example/\\u0000", "https://a.example/\\n"})
        EXPECT_EQ(problemOfAddress(address), (JsonProblem{"address", "is not an address of HTTPS"}))
            << address;
    EXPECT_EQ(problemOfAddress("https://a.example/" + std::string(2'048, 'a')),
        (JsonProblem{"address", "is not an address of HTTPS"}));
}

} // namespace
} // namespace brindlex
