#include "foundation/JsonCoding.h"

#include "support/basics/JsonReading.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace brindlex {
namespace {

template <typename Value>
Result<Value, JsonProblem> refusal(const std::string& reason, const std::string& path = "")
{
    return fail(JsonProblem{path, reason});
}

template <typename Value>
void expectRoundTrip(const Value& value, const std::string& text)
{
    EXPECT_EQ(jsonText(toJson(value)), text);
    EXPECT_EQ(readJson<Value>(text), (Result<Value, JsonProblem>(value)));
}

TEST(JsonCoding, writesAndReadsEachKindOfValue)
{
    expectRoundTrip(true, "true");
    expectRoundTrip(false, "false");
    expectRoundTrip(-5, "-5");
    expectRoundTrip(1.5, "1.5");
    expectRoundTrip(0.1, "0.1");
    expectRoundTrip(std::string("漢\n"), "\"漢\\n\"");
    expectRoundTrip(Date{12.25}, "12.25");
    expectRoundTrip(Uuid{}, "\"00000000-0000-0000-0000-000000000000\"");
    expectRoundTrip(std::vector<int>{}, "[]");
    expectRoundTrip(std::vector<std::vector<int>>{{1, 2}, {}}, "[[1,2],[]]");
    expectRoundTrip(
        std::map<std::string, bool>{{"a", true}, {"b", false}}, R"({"a":true,"b":false})");
}

TEST(JsonCoding, writesAndReadsManyKeys)
{
    std::map<std::string, int> values;
    for (int number = 0; number < 200'000; ++number)
        values.emplace("key" + std::to_string(number), number);
    EXPECT_EQ(readJson<decltype(values)>(jsonText(toJson(values))), values);
}

TEST(JsonCoding, readsOnlyBooleansAsBooleans)
{
    for (const auto* text : {"0", "1", "null", "\"true\"", "[]", "{}"})
        EXPECT_EQ(readJson<bool>(text), refusal<bool>("is not a Boolean")) << text;
}

TEST(JsonCoding, readsWholeNumbersAlsoWithAPoint)
{
    EXPECT_EQ(*readJson<int>("3.0"), 3);
    EXPECT_EQ(*readJson<int>("-3e2"), -300);
    EXPECT_EQ(*readJson<int>("-0.0"), 0);
    EXPECT_EQ(*readJson<unsigned>("-0.0"), 0u);
    EXPECT_EQ(*readJson<std::int64_t>("-9223372036854775808.0"), INT64_MIN);
    for (const auto* text : {"3.5", "1e-9", "true", "null", "\"3\"", "[]", "{}"})
        EXPECT_EQ(readJson<int>(text), refusal<int>("is not a whole number in range")) << text;
}

TEST(JsonCoding, readsWholeNumbersThatFitTheType)
{
    EXPECT_EQ(*readJson<int>("2147483647"), INT32_MAX);
    EXPECT_EQ(*readJson<int>("-2147483648"), INT32_MIN);
    EXPECT_EQ(*readJson<std::int64_t>("9223372036854775807"), INT64_MAX);
    EXPECT_EQ(*readJson<std::uint64_t>("18446744073709551615"), UINT64_MAX);
    EXPECT_EQ(*readJson<std::uint8_t>("255"), 255);

    for (const auto* text : {"2147483648", "-2147483649", "2147483648.0", "-2147483649.0",
             "18446744073709551615", "1e300", "-1e300"})
        EXPECT_EQ(readJson<int>(text), refusal<int>("is not a whole number in range")) << text;
    for (const auto* text : {"9223372036854775808", "9223372036854775808.0", "18446744073709551616",
             "-9223372036854777856.0"})
        EXPECT_EQ(
            readJson<std::int64_t>(text), refusal<std::int64_t>("is not a whole number in range"))
            << text;
    for (const auto* text : {"-1", "-1.0", "18446744073709551616"})
        EXPECT_EQ(
            readJson<std::uint64_t>(text), refusal<std::uint64_t>("is not a whole number in range"))
            << text;
    EXPECT_FALSE(readJson<std::uint8_t>("256"));
}

TEST(JsonCoding, readsNumbersThatNoDocumentHoldsAsNoWholeNumbers)
{
    for (const double number : {std::nan(""), std::numeric_limits<double>::infinity(),
             -std::numeric_limits<double>::infinity()})
        EXPECT_FALSE(fromJson<std::int64_t>(Json(number)));
}

TEST(JsonCoding, readsAnyNumberAsAFraction)
{
    EXPECT_EQ(*readJson<double>("3"), 3.0);
    EXPECT_EQ(*readJson<double>("18446744073709551615"), 18446744073709551615.0);
    EXPECT_EQ(*readJson<double>("1e308"), 1e308);
    for (const auto* text : {"true", "null", "\"3\"", "[]", "{}"}) {
        EXPECT_EQ(readJson<double>(text), refusal<double>("is not a number")) << text;
        EXPECT_EQ(readJson<Date>(text), refusal<Date>("is not a date")) << text;
    }
}

TEST(JsonCoding, readsOnlyTextAsText)
{
    for (const auto* text : {"3", "true", "null", "[]", "{}"}) {
        EXPECT_EQ(readJson<std::string>(text), refusal<std::string>("is not text")) << text;
        EXPECT_EQ(readJson<Uuid>(text), refusal<Uuid>("is not a UUID")) << text;
    }
    EXPECT_EQ(readJson<Uuid>("\"0000\""), refusal<Uuid>("is not a UUID"));
    EXPECT_EQ(readJson<std::string>("\"a\\u0000b\"")->size(), 3u);
}

TEST(JsonCoding, saysWhereAListOrAMapIsWrong)
{
    using Lists = std::vector<std::vector<int>>;
    using Map = std::map<std::string, Lists>;
    EXPECT_EQ(readJson<Lists>("{}"), refusal<Lists>("is not a list"));
    EXPECT_EQ(readJson<Lists>("[[1],[2,\"x\"]]"),
        refusal<Lists>("is not a whole number in range", "1.1"));
    EXPECT_EQ(readJson<Map>("[]"), refusal<Map>("is not an object"));
    EXPECT_EQ(readJson<Map>("null"), refusal<Map>("is not an object"));
    EXPECT_EQ(readJson<Map>(R"({"a":[[1]],"b":[[1],7]})"), refusal<Map>("is not a list", "b.1"));
}

} // namespace
} // namespace brindlex
