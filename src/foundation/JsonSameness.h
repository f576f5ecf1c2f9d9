#pragma once

#include "foundation/Date.h"
#include "foundation/JsonForm.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace brindlex {

/// Whether two values have the same JSON text, found out without making the text.
///
/// Narrower than `==` where numbers are: 0 and -0 are equal and read differently in JSON, and a
/// value that is no number is the same as itself.
template <typename Value>
bool hasSameJson(const Value& one, const Value& other);

namespace detail {

template <typename Value>
struct JsonSameness {
    static bool test(const Value& one, const Value& other) { return one == other; }
};

template <>
struct JsonSameness<double> {
    static bool test(double one, double other)
    {
        return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
    }
};

template <>
struct JsonSameness<Date> {
    static bool test(Date one, Date other)
    {
        return hasSameJson(one.secondsSinceReferenceDate, other.secondsSinceReferenceDate);
    }
};

template <typename Element>
struct JsonSameness<std::optional<Element>> {
    static bool test(const std::optional<Element>& one, const std::optional<Element>& other)
    {
        return one.has_value() == other.has_value() && (!one || hasSameJson(*one, *other));
    }
};

template <typename Element>
struct JsonSameness<std::vector<Element>> {
    static bool test(const std::vector<Element>& one, const std::vector<Element>& other)
    {
        return std::equal(one.begin(), one.end(), other.begin(), other.end(), hasSameJson<Element>);
    }
};

template <typename Element>
struct JsonSameness<std::map<std::string, Element>> {
    using Map = std::map<std::string, Element>;
    static bool test(const Map& one, const Map& other)
    {
        const auto sameEntry = [](const auto& left, const auto& right) {
            return left.first == right.first && hasSameJson(left.second, right.second);
        };
        return std::equal(one.begin(), one.end(), other.begin(), other.end(), sameEntry);
    }
};

template <HasJsonForm Record>
struct JsonSameness<Record> {
    static bool test(const Record& one, const Record& other)
    {
        return std::apply(
            [&](const auto&... field) {
                return (hasSameJson(one.*field.member, other.*field.member) && ...);
            },
            Record::jsonForm());
    }
};

} // namespace detail

template <typename Value>
bool hasSameJson(const Value& one, const Value& other)
{
    return detail::JsonSameness<Value>::test(one, other);
}

} // namespace brindlex
