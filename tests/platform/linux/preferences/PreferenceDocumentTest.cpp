#include "platform/linux/preferences/PreferenceDocument.h"

#include <gtest/gtest.h>

#include <limits>

namespace brindlex {
namespace {

PreferenceDocument document(const std::string& text) { return parsePreferences(text).value(); }

PreferenceValue json(const std::string& text) { return PreferenceJson{text}; }

TEST(PreferenceDocument, readsEachKindOfPlainValue)
{
    const auto read = document(
        R"({"flag":true,"number":-7,"ratio":0.5,"whole":3.0,"text":"a","none":[],"texts":["a","b"]})");
    EXPECT_EQ(*valueIn(read, "flag"), PreferenceValue(true));
    EXPECT_EQ(*valueIn(read, "number"), PreferenceValue(std::int64_t{-7}));
    EXPECT_EQ(*valueIn(read, "ratio"), PreferenceValue(0.5));
    EXPECT_EQ(*valueIn(read, "whole"), PreferenceValue(3.0));
    EXPECT_EQ(*valueIn(read, "text"), PreferenceValue("a"));
    EXPECT_EQ(*valueIn(read, "none"), PreferenceValue(std::vector<std::string>{}));
    EXPECT_EQ(*valueIn(read, "texts"), PreferenceValue(std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(valueIn(read, "missing"), nullptr);
}

TEST(PreferenceDocument, keepsWhatIsNoPlainValueAsItIs)
{
    const std::string text = R"({
  "huge": 18446744073709551615,
  "mixed": [
    "a",
    1
  ],
  "nested": {
    "a": [
      null
    ]
  },
  "nothing": null
}
)";
    const auto read = document(text);
    EXPECT_EQ(*valueIn(read, "huge"), json("18446744073709551615"));
    EXPECT_EQ(*valueIn(read, "mixed"), json(R"(["a",1])"));
    EXPECT_EQ(*valueIn(read, "nested"), json(R"({"a":[null]})"));
    EXPECT_EQ(*valueIn(read, "nothing"), json("null"));
    EXPECT_EQ(preferencesText(read), text);
}

TEST(PreferenceDocument, isWrittenForAPersonToReadWithItsKeysInOrder)
{
    PreferenceDocument content;
    content["b"] = storedPreference(std::int64_t{1});
    content["a"] = storedPreference(true);
    content["c"] = storedPreference(std::vector<std::string>{"x"});
    EXPECT_EQ(preferencesText(content),
        "{\n  \"a\": true,\n  \"b\": 1,\n  \"c\": [\n    \"x\"\n  ]\n}\n");
    EXPECT_EQ(preferencesText({}), "{}\n");
}

TEST(PreferenceDocument, isReadBackAsItWasWritten)
{
    PreferenceDocument content;
    content["text"] = storedPreference(std::string("a\0b\x01\n\"\\ 键盘 \xF0\x9F\x8E\xB9", 19));
    content["smallest"] = storedPreference(std::numeric_limits<std::int64_t>::min());
    content["largest"] = storedPreference(std::numeric_limits<std::int64_t>::max());
    content["exact"] = storedPreference(0.1);
    content["negative zero"] = storedPreference(-0.0);
    content[""] = storedPreference(std::string());
    EXPECT_TRUE(isSameDocument(document(preferencesText(content)), content));
}

TEST(PreferenceDocument, replacesWhatJsonDoesNotHave)
{
    PreferenceDocument content;
    content["a\xFF"] = storedPreference(std::string("\xC3\x28"));
    content["n"] = storedPreference(std::numeric_limits<double>::quiet_NaN());
    content["o"] = storedPreference(json("{"));
    EXPECT_EQ(preferencesText(content),
        "{\n  \"a\xEF\xBF\xBD\": \"\xEF\xBF\xBD(\",\n  \"n\": null,\n  \"o\": null\n}\n");
}

TEST(PreferenceDocument, isNothingButOneObject)
{
    for (const std::string text : {"", " ", "[]", "5", "null", "\"{}\"", "{", "{}}", "{\"a\":}",
             "{\"a\":1,}", "{'a':1}", "{\"a\":\"\xFF\"}", "{\"\xFF\":1}", "{\"a\":1e999}"})
        EXPECT_FALSE(parsePreferences(text)) << text;
    EXPECT_FALSE(parsePreferences(std::string("{\"a\":1}\0", 8)));
    EXPECT_EQ(parsePreferences("[]").error().reason, "is not an object");
    EXPECT_EQ(parsePreferences("{").error().reason, "is not JSON");
}

TEST(PreferenceDocument, isNotReadWhenItIsNestedTooDeeply)
{
    const std::string deep
        = "{\"a\":" + std::string(100'000, '[') + std::string(100'000, ']') + "}";
    EXPECT_EQ(parsePreferences(deep).error().reason, "is nested too deeply");
}

TEST(PreferenceDocument, takesManyKeys)
{
    std::string text = "{";
    for (int number = 0; number < 200'000; ++number)
        text += "\"key" + std::to_string(number) + "\":1,";
    EXPECT_EQ(document(text + "\"last\":1}").size(), 200'001U);
}

TEST(PreferenceDocument, isComparedByItsValues)
{
    EXPECT_TRUE(
        isSameDocument(document(R"({"a":1,"b":[null]})"), document(R"({"b":[null],"a":1})")));
    EXPECT_FALSE(isSameDocument(document(R"({"a":1})"), document(R"({"a":2})")));
    EXPECT_FALSE(isSameDocument(document(R"({"a":1})"), document(R"({"a":1.0})")));
    EXPECT_FALSE(isSameDocument(document(R"({"a":1})"), document(R"({"b":1})")));
    EXPECT_FALSE(isSameDocument(document(R"({"a":1})"), document(R"({"a":1,"b":1})")));
}

TEST(PreferenceDocument, mergesByKey)
{
    const auto file = document(R"({"both":"file","file":1,"nested":{"x":1},"removed":true})");
    const auto memory = document(R"({"both":"memory","mine":2,"stale":3})");
    EXPECT_TRUE(isSameDocument(merged(file, memory, {"both", "mine", "removed", "never"}),
        document(R"({"both":"memory","file":1,"nested":{"x":1},"mine":2})")));
    EXPECT_TRUE(isSameDocument(merged(file, memory, {}), file));
    EXPECT_TRUE(isSameDocument(merged({}, memory, {"mine"}), document(R"({"mine":2})")));
}

TEST(PreferenceDocument, survivesAnyBytes)
{
    constexpr int rounds = 2'000;
    int readable = 0;
    std::uint32_t state = 1;
    const auto random = [&] { return state = state * 1'664'525 + 1'013'904'223; };
    const std::string whole = R"({"a":[1,"x",{"b":null}],"c":"\u00e9","d":1.5e3})";
    for (int round = 0; round < rounds; ++round) {
        auto bytes = whole;
        for (auto changes = 1 + random() % 4; changes > 0; --changes)
            bytes[(random() >> 8) % bytes.size()] = static_cast<char>(random() >> 24);
        const auto parsed = parsePreferences(bytes);
        if (parsed) {
            ++readable;
            EXPECT_TRUE(isSameDocument(document(preferencesText(*parsed)), *parsed)) << bytes;
        }
    }
    EXPECT_GT(readable, 0);
    EXPECT_LT(readable, rounds);
}

} // namespace
} // namespace brindlex
