#include "foundation/JsonForm.h"

#include "foundation/JsonCoding.h"
#include "support/basics/JsonReading.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

struct Inner {
    int number = 0;

    bool operator==(const Inner&) const = default;

    static constexpr auto jsonForm() { return std::tuple{required("number", &Inner::number)}; }
};
static_assert(jsonFormIsComplete<Inner>);

std::string computedName() { return "computed"; }

struct Record {
    std::string text{};
    bool isOn = true;
    std::string name{};
    std::optional<int> limit{};
    std::vector<Inner> inners{};

    bool operator==(const Record&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("text", &Record::text),
            orDefault("on", &Record::isOn),
            orComputed("name", &Record::name, &computedName),
            omittedWhenAbsent("limit", &Record::limit),
            orDefault("inners", &Record::inners),
        };
    }
};
static_assert(jsonFormIsComplete<Record>);

struct Forgetful {
    int stored = 0;
    int forgotten = 0;

    static constexpr auto jsonForm() { return std::tuple{required("stored", &Forgetful::stored)}; }
};
static_assert(!jsonFormIsComplete<Forgetful>);

struct Clamped {
    int percent = 50;

    bool operator==(const Clamped&) const = default;

    static constexpr auto jsonForm() { return std::tuple{orDefault("percent", &Clamped::percent)}; }

    void afterDecoding() { percent = percent > 100 ? 100 : percent; }
};

using ReadRecord = Result<Record, JsonProblem>;

ReadRecord readRecord(const std::string& text) { return readJson<Record>(text); }

ReadRecord refusal(const std::string& path, const std::string& reason)
{
    return fail(JsonProblem{path, reason});
}

TEST(JsonForm, writesTheFieldsInDeclaredOrder)
{
    EXPECT_EQ(jsonText(toJson(Record{"t", false, "n", 5, {{1}, {2}}})),
        R"({"text":"t","on":false,"name":"n","limit":5,"inners":[{"number":1},{"number":2}]})");
}

TEST(JsonForm, leavesOutAnAbsentValueAndNothingElse)
{
    EXPECT_EQ(jsonText(toJson(Record{})), R"({"text":"","on":true,"name":"","inners":[]})");
}

TEST(JsonForm, readsWhatItWrote)
{
    for (const auto& record :
        {Record{}, Record{"t", false, "n", 5, {{1}, {2}}}, Record{"漢\n\"", true, "", -1, {}}})
        EXPECT_EQ(fromJson<Record>(toJson(record)), ReadRecord(record));
}

TEST(JsonForm, readsTheKeysInAnyOrderAndLeavesUnknownOnesAlone)
{
    EXPECT_EQ(readRecord(R"({"new":{"a":[1]},"name":"n","text":"t","on":false})"),
        ReadRecord(Record{"t", false, "n", {}, {}}));
}

TEST(JsonForm, givesEachMissingKeyItsMeaning)
{
    EXPECT_EQ(readRecord(R"({"text":"t"})"), ReadRecord(Record{"t", true, "computed", {}, {}}));
    EXPECT_EQ(readRecord(R"({"on":false})"), refusal("text", "is missing"));
    EXPECT_EQ(readRecord("{}"), refusal("text", "is missing"));
}

TEST(JsonForm, takesNullForMissingExceptWhereAKeyIsRequired)
{
    EXPECT_EQ(readRecord(R"({"text":"t","on":null,"name":null,"limit":null,"inners":null})"),
        ReadRecord(Record{"t", true, "computed", {}, {}}));
    EXPECT_EQ(readRecord(R"({"text":null})"), refusal("text", "is not text"));
}

TEST(JsonForm, saysWhereAValueIsOfAnotherType)
{
    EXPECT_EQ(readRecord(R"({"text":5})"), refusal("text", "is not text"));
    EXPECT_EQ(readRecord(R"({"text":"t","on":1})"), refusal("on", "is not a Boolean"));
    EXPECT_EQ(readRecord(R"({"text":"t","name":[]})"), refusal("name", "is not text"));
    EXPECT_EQ(readRecord(R"({"text":"t","limit":"5"})"),
        refusal("limit", "is not a whole number in range"));
    EXPECT_EQ(readRecord(R"({"text":"t","inners":{}})"), refusal("inners", "is not a list"));
    EXPECT_EQ(readRecord(R"({"text":"t","inners":[{"number":1},{"number":true}]})"),
        refusal("inners.1.number", "is not a whole number in range"));
    EXPECT_EQ(readRecord(R"({"text":"t","inners":[{"number":1},{}]})"),
        refusal("inners.1.number", "is missing"));
    EXPECT_EQ(
        readRecord(R"({"text":"t","inners":[null]})"), refusal("inners.0", "is not an object"));
    for (const auto* text : {"null", "[]", "5", "\"text\"", "true"})
        EXPECT_EQ(readRecord(text), refusal("", "is not an object")) << text;
}

TEST(JsonForm, saysTheFirstOfManyProblems)
{
    EXPECT_EQ(readRecord(R"({"inners":5,"on":"x","text":7})"), refusal("text", "is not text"));
}

TEST(JsonForm, endsReadingWithTheRecordsOwnStep)
{
    EXPECT_EQ(*fromJson<Clamped>(Json::parse(R"({"percent":250})")), Clamped{100});
    EXPECT_EQ(*fromJson<Clamped>(Json::parse("{}")), Clamped{50});
}

TEST(JsonForm, countsTheFieldsOfARecord)
{
    EXPECT_EQ(fieldCount<Inner>(), 1u);
    EXPECT_EQ(fieldCount<Record>(), 5u);
    EXPECT_EQ(fieldCount<Forgetful>(), 2u);
}

} // namespace
} // namespace brindlex
