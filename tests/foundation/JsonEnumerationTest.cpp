#include "foundation/JsonEnumeration.h"

#include "foundation/JsonCoding.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

namespace brindlex {
namespace {

enum class Priority { low, high, urgent };

constexpr auto storedValues(std::type_identity<Priority>)
{
    return std::array{
        std::pair{Priority::low, "low"},
        std::pair{Priority::high, "high"},
        std::pair{Priority::urgent, "very urgent"},
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

template <typename Value>
Result<Value, JsonProblem> read(const std::string& text)
{
    return fromJson<Value>(parseJson(text).value());
}

TEST(JsonEnumeration, listsItsCasesInDeclaredOrder)
{
    EXPECT_EQ(allCases<Priority>(), (std::array{Priority::low, Priority::high, Priority::urgent}));
    EXPECT_EQ(allCases<Button>(), (std::array{Button::left, Button::right}));
}

TEST(JsonEnumeration, hasAStoredValueForEachCase)
{
    EXPECT_EQ(std::string(storedValue(Priority::low)), "low");
    EXPECT_EQ(std::string(storedValue(Priority::urgent)), "very urgent");
    EXPECT_EQ(storedValue(Button::left), 0);
    EXPECT_EQ(storedValue(Button::right), -2);
}

TEST(JsonEnumeration, findsACaseByItsStoredValue)
{
    EXPECT_EQ(caseWithStoredValue<Priority>(std::string("high")), Priority::high);
    EXPECT_EQ(caseWithStoredValue<Priority>(std::string_view("low")), Priority::low);
    EXPECT_EQ(caseWithStoredValue<Priority>(std::string("High")), std::nullopt);
    EXPECT_EQ(caseWithStoredValue<Priority>(std::string("")), std::nullopt);
    EXPECT_EQ(caseWithStoredValue<Button>(-2), Button::right);
    EXPECT_EQ(caseWithStoredValue<Button>(10), std::nullopt);
}

TEST(JsonEnumeration, isStoredAsTextOrAsANumber)
{
    for (const auto value : allCases<Priority>())
        EXPECT_EQ(*fromJson<Priority>(toJson(value)), value);
    for (const auto value : allCases<Button>())
        EXPECT_EQ(*fromJson<Button>(toJson(value)), value);
    EXPECT_EQ(jsonText(toJson(Priority::urgent)), "\"very urgent\"");
    EXPECT_EQ(jsonText(toJson(Button::right)), "-2");
}

TEST(JsonEnumeration, isNotReadFromOtherValues)
{
    const Result<Priority, JsonProblem> unknown
        = fail(JsonProblem{"", "is not a value of the enumeration"});
    for (const auto* text : {"\"\"", "\"LOW\"", "\"low \"", "\"low\\u0000\""})
        EXPECT_EQ(read<Priority>(text), unknown) << text;
    for (const auto* text : {"0", "null", "true", "[\"low\"]", "{}"})
        EXPECT_EQ(read<Priority>(text),
            (Result<Priority, JsonProblem>(fail(JsonProblem{"", "is not text"}))))
            << text;

    EXPECT_EQ(read<Button>("1"),
        (Result<Button, JsonProblem>(fail(JsonProblem{"", "is not a value of the enumeration"}))));
    for (const auto* text : {"\"0\"", "0.5", "4294967296", "null"})
        EXPECT_EQ(read<Button>(text),
            (Result<Button, JsonProblem>(fail(JsonProblem{"", "is not a whole number in range"}))))
            << text;
}

} // namespace
} // namespace brindlex
