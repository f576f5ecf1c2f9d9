#include "foundation/JsonEnumeration.h"

#include "foundation/JsonCoding.h"
#include "support/basics/JsonReading.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

namespace brindlex {
namespace {

enum class Urgency { low, high, urgent };

constexpr auto storedValues(std::type_identity<Urgency>)
{
    return std::array{
        std::pair{Urgency::low, "low"},
        std::pair{Urgency::high, "high"},
        std::pair{Urgency::urgent, "very urgent"},
    };
}

enum class Button { left = 10, right = 20 };

constexpr auto storedValues(std::type_identity<Button>)
{
    return std::array{
        std::pair{Button::left, 0},
        std::pair{Button::right, -2},
    };
}

TEST(JsonEnumeration, listsItsCasesInDeclaredOrder)
{
    EXPECT_EQ(allCases<Urgency>(), (std::array{Urgency::low, Urgency::high, Urgency::urgent}));
    EXPECT_EQ(allCases<Button>(), (std::array{Button::left, Button::right}));
}

TEST(JsonEnumeration, hasAStoredValueForEachCase)
{
    EXPECT_EQ(std::string(storedValue(Urgency::low)), "low");
    EXPECT_EQ(std::string(storedValue(Urgency::urgent)), "very urgent");
    EXPECT_EQ(storedValue(Button::left), 0);
    EXPECT_EQ(storedValue(Button::right), -2);
}

TEST(JsonEnumeration, findsACaseByItsStoredValue)
{
    EXPECT_EQ(caseWithStoredValue<Urgency>(std::string("high")), Urgency::high);
    EXPECT_EQ(caseWithStoredValue<Urgency>(std::string_view("low")), Urgency::low);
    EXPECT_EQ(caseWithStoredValue<Urgency>(std::string("High")), std::nullopt);
    EXPECT_EQ(caseWithStoredValue<Urgency>(std::string("")), std::nullopt);
    EXPECT_EQ(caseWithStoredValue<Button>(-2), Button::right);
    EXPECT_EQ(caseWithStoredValue<Button>(10), std::nullopt);
}

TEST(JsonEnumeration, isStoredAsTextOrAsANumber)
{
    for (const auto value : allCases<Urgency>())
        EXPECT_EQ(*fromJson<Urgency>(toJson(value)), value);
    for (const auto value : allCases<Button>())
        EXPECT_EQ(*fromJson<Button>(toJson(value)), value);
    EXPECT_EQ(jsonText(toJson(Urgency::urgent)), "\"very urgent\"");
    EXPECT_EQ(jsonText(toJson(Button::right)), "-2");
}

TEST(JsonEnumeration, isNotReadFromOtherValues)
{
    const Result<Urgency, JsonProblem> unknown
        = fail(JsonProblem{"", "is not a value of the enumeration"});
    for (const auto* text : {"\"\"", "\"LOW\"", "\"low \"", "\"low\\u0000\""})
        EXPECT_EQ(readJson<Urgency>(text), unknown) << text;
    for (const auto* text : {"0", "null", "true", "[\"low\"]", "{}"})
        EXPECT_EQ(readJson<Urgency>(text),
            (Result<Urgency, JsonProblem>(fail(JsonProblem{"", "is not text"}))))
            << text;

    EXPECT_EQ(readJson<Button>("1"),
        (Result<Button, JsonProblem>(fail(JsonProblem{"", "is not a value of the enumeration"}))));
    for (const auto* text : {"\"0\"", "0.5", "4294967296", "null"})
        EXPECT_EQ(readJson<Button>(text),
            (Result<Button, JsonProblem>(fail(JsonProblem{"", "is not a whole number in range"}))))
            << text;
}

} // namespace
} // namespace brindlex
