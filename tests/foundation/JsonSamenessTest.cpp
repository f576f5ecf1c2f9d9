#include "foundation/JsonSameness.h"

#include "foundation/JsonCoding.h"

#include <gtest/gtest.h>

#include <limits>

namespace brindlex {
namespace {

struct Part {
    double number = 0;
    std::optional<Date> date{};
    std::vector<std::string> texts{};
    std::map<std::string, std::vector<Date>> dates{};

    bool operator==(const Part&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("number", &Part::number),
            omittedWhenAbsent("date", &Part::date),
            required("texts", &Part::texts),
            required("dates", &Part::dates),
        };
    }
};
static_assert(jsonFormIsComplete<Part>);

struct Whole {
    std::vector<Part> parts{};
    bool flag = false;

    bool operator==(const Whole&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("parts", &Whole::parts),
            required("flag", &Whole::flag),
        };
    }
};
static_assert(jsonFormIsComplete<Whole>);

constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();

/// Values that all differ in their JSON.
const std::vector<Whole> different{
    {},
    {.flag = true},
    {.parts = {{}}},
    {.parts = {{}, {}}},
    {.parts = {{.number = -0.0}}},
    {.parts = {{.number = 1}}},
    {.parts = {{.number = notANumber}}},
    {.parts = {{.date = Date{0}}}},
    {.parts = {{.date = Date{-0.0}}}},
    {.parts = {{.texts = {""}}}},
    {.parts = {{.texts = {"a"}}}},
    {.parts = {{.dates = {{"a", {}}}}}},
    {.parts = {{.dates = {{"b", {}}}}}},
    {.parts = {{.dates = {{"a", {Date{1}}}}}}},
    {.parts = {{.dates = {{"a", {Date{1}, Date{2}}}}}}},
};

TEST(JsonSameness, holdsForAValueAndItsCopyAndForNoOther)
{
    for (std::size_t one = 0; one < different.size(); ++one)
        for (std::size_t other = 0; other < different.size(); ++other)
            EXPECT_EQ(hasSameJson(different[one], Whole(different[other])), one == other)
                << one << " and " << other;
}

TEST(JsonSameness, meansEqualText)
{
    for (const auto& one : different)
        for (const auto& other : different)
            if (hasSameJson(one, other)) {
                EXPECT_EQ(jsonText(toJson(one)), jsonText(toJson(other)));
            }
}

} // namespace
} // namespace brindlex
