#include "foundation/Json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {
namespace {

using Parsed = Result<Json, JsonProblem>;

TEST(Json, keepsKeysInTheOrderOfInsertion)
{
    Json document;
    document["z"] = 1;
    document["a"] = Json::array({1, "two", nullptr});

    EXPECT_EQ(jsonText(document), R"({"z":1,"a":[1,"two",null]})");
    EXPECT_EQ(prettyJsonText(document),
        "{\n  \"z\": 1,\n  \"a\": [\n    1,\n    \"two\",\n    null\n  ]\n}");
}

TEST(Json, isReadBackAsItWasWritten)
{
    const std::string text = R"({"a":{"漢":"🎛\n\u0000"},"b":[true,false,null,-5,1.5,""]})";
    const auto document = parseJson(text);

    ASSERT_TRUE(document);
    EXPECT_EQ(jsonText(*document), text);
}

TEST(Json, isReadWithSortedKeysOfWhichTheLastValueCounts)
{
    EXPECT_EQ(jsonText(parseJson(R"({"b":1,"a":2,"b":3})").value()), R"({"a":2,"b":3})");
}

TEST(Json, takesManyKeys)
{
    constexpr int count = 200'000;
    std::string text = "{";
    for (int number = count; number > 0; --number)
        text += "\"key" + std::to_string(number) + "\":1,";
    EXPECT_EQ(parseJson(text + "\"last\":1}").value().size(), count + 1U);
}

TEST(Json, replacesBytesThatAreNotUtf8WhenWritten)
{
    Json document;
    document["a\xFF"] = "b\xC3";
    EXPECT_EQ(jsonText(document), "{\"a\uFFFD\":\"b\uFFFD\"}");
}

TEST(Json, writesNumbersThatItCannotHoldAsNull)
{
    EXPECT_EQ(jsonText(Json::array({std::nan(""), std::numeric_limits<double>::infinity()})),
        "[null,null]");
}

TEST(Json, isNotReadFromOtherText)
{
    const Parsed refusal = fail(JsonProblem{"", "is not JSON"});
    for (const auto* text : {"", " ", "{", "}", "{\"a\":}", "{\"a\":1,}", "[1,]", "[1 2]", "nul",
             "'a'", "{a:1}", "01", "+1", ".5", "NaN", "Infinity", "-", "1e", "\"", "\"\\x\"",
             "\"\\ud800\"", "\"a\nb\"", "{} {}", "{}x", "// x\n1", "1e999", "-1e999", "\"\xFF\"",
             "\"\xED\xA0\x80\"", "\xFF", "<html></html>"})
        EXPECT_EQ(parseJson(text), refusal) << text;
    EXPECT_EQ(parseJson(std::string_view("1\0", 2)), refusal);
    EXPECT_EQ(parseJson(std::string_view("{}\0x", 4)), refusal);
}

TEST(Json, isReadFromTextWithAMarkOrSpaceAroundIt)
{
    EXPECT_EQ(parseJson("\xEF\xBB\xBF 1 \n"), Parsed(Json(1)));
}

TEST(Json, isReadUpToADepthThatTheStackHolds)
{
    const auto nested
        = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_TRUE(parseJson(nested(512)));
    const Parsed refusal = fail(JsonProblem{"", "is nested too deeply"});
    EXPECT_EQ(parseJson(nested(514)), refusal);
    EXPECT_EQ(parseJson(nested(1'000'000)), refusal);
    EXPECT_EQ(parseJson(std::string(1'000'000, '[')), refusal);
    std::string objects;
    for (int depth = 0; depth < 100'000; ++depth)
        objects += "{\"a\":";
    EXPECT_EQ(parseJson(objects), refusal);
}

TEST(Json, keepsTheLastOfEqualKeys)
{
    EXPECT_EQ(jsonText(*parseJson(R"({"a":1,"a":2})")), R"({"a":2})");
}

TEST(Json, readsWholeNumbersUpTo64Bits)
{
    EXPECT_EQ(jsonText(*parseJson("18446744073709551615")), "18446744073709551615");
    EXPECT_EQ(jsonText(*parseJson("-9223372036854775808")), "-9223372036854775808");
    EXPECT_TRUE(parseJson("18446744073709551616")->is_number_float());
}

/// The elements of a list as they are visited, or what is wrong with the text.
std::vector<std::string> visited(std::string_view text)
{
    std::vector<std::string> elements;
    const auto end = visitJsonList(
        text, [&](const SortedJson& element) { elements.push_back(element.dump()); });
    if (!end)
        elements.push_back(end.error().reason);
    return elements;
}

TEST(Json, isVisitedElementByElement)
{
    using Elements = std::vector<std::string>;
    EXPECT_EQ(visited(" [] "), Elements{});
    EXPECT_EQ(visited(R"([1,null,"a",{},[],{"b":[{"c":[]}],"a":{}},[[1],[]],true])"),
        (Elements{
            "1", "null", "\"a\"", "{}", "[]", R"({"a":{},"b":[{"c":[]}]})", "[[1],[]]", "true"}));
}

TEST(Json, isVisitedInALittleTimePerElement)
{
    std::string list = "[";
    for (int number = 0; number < 100'000; ++number)
        list += "{},";
    EXPECT_EQ(visited(list + "{}]").size(), 100'001U);
}

TEST(Json, isVisitedOnlyAsAList)
{
    using Elements = std::vector<std::string>;
    for (const char* text : {"{}", "1", "null", "\"[]\"", R"({"a":[1]})"})
        EXPECT_EQ(visited(text), Elements{"is not a list"}) << text;
    for (const char* text : {"", "[", "]", "[,]", "[}", "\xFF"})
        EXPECT_EQ(visited(text), Elements{"is not JSON"}) << text;
    EXPECT_EQ(visited("[1,2"), (Elements{"1", "2", "is not JSON"}));
    EXPECT_EQ(visited("[1] x"), (Elements{"1", "is not JSON"}));
    EXPECT_EQ(visited(std::string(1'000'000, '[')), Elements{"is nested too deeply"});
}

} // namespace
} // namespace brindlex
