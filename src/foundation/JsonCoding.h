#pragma once

#include "foundation/Date.h"
#include "foundation/Json.h"
#include "foundation/Uuid.h"

#include <cmath>
#include <concepts>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// How a value of a type is written as JSON and read back:
///
///     static Json encode(const Value&);
///     static Result<Value, JsonProblem> decode(const Json&);
///
/// Records get theirs from `JsonForm.h`, enumerations with stored values from `JsonEnumeration.h`.
template <typename Value>
struct JsonCoding;

template <typename Value>
Json toJson(const Value& value)
{
    return JsonCoding<Value>::encode(value);
}

template <typename Value>
Result<Value, JsonProblem> fromJson(const Json& document)
{
    return JsonCoding<Value>::decode(document);
}

/// The same problem, seen from the document that holds the part at `key`.
inline JsonProblem within(const std::string& key, JsonProblem problem)
{
    problem.path = problem.path.empty() ? key : key + "." + problem.path;
    return problem;
}

template <>
struct JsonCoding<bool> {
    static Json encode(bool value) { return value; }
    static Result<bool, JsonProblem> decode(const Json& document)
    {
        if (!document.is_boolean())
            return fail(JsonProblem{"", "is not a Boolean"});
        return document.get<bool>();
    }
};

/// Whole numbers; 3.0 is one too, and what does not fit into the type is not.
template <std::integral Value>
requires(!std::same_as<Value, bool>) struct JsonCoding<Value> {
    static Json encode(Value value) { return value; }
    static Result<Value, JsonProblem> decode(const Json& document)
    {
        if (document.is_number_unsigned() && std::in_range<Value>(document.get<std::uint64_t>()))
            return static_cast<Value>(document.get<std::uint64_t>());
        if (document.is_number_integer() && !document.is_number_unsigned()
            && std::in_range<Value>(document.get<std::int64_t>()))
            return static_cast<Value>(document.get<std::int64_t>());
        if (document.is_number_float()) {
            const double number = document.get<double>();
            const double tooLarge = std::ldexp(1.0, std::numeric_limits<Value>::digits);
            const double smallest = std::is_signed_v<Value> ? -tooLarge : 0.0;
            if (std::trunc(number) == number && number >= smallest && number < tooLarge)
                return static_cast<Value>(number);
        }
        return fail(JsonProblem{"", "is not a whole number in range"});
    }
};

template <>
struct JsonCoding<double> {
    static Json encode(double value) { return value; }
    static Result<double, JsonProblem> decode(const Json& document)
    {
        if (!document.is_number())
            return fail(JsonProblem{"", "is not a number"});
        return document.get<double>();
    }
};

template <>
struct JsonCoding<std::string> {
    static Json encode(const std::string& value) { return value; }
    static Result<std::string, JsonProblem> decode(const Json& document)
    {
        if (!document.is_string())
            return fail(JsonProblem{"", "is not text"});
        return document.get<std::string>();
    }
};

template <>
struct JsonCoding<Date> {
    static Json encode(Date value) { return value.secondsSinceReferenceDate; }
    static Result<Date, JsonProblem> decode(const Json& document)
    {
        if (!document.is_number())
            return fail(JsonProblem{"", "is not a date"});
        return Date{document.get<double>()};
    }
};

template <>
struct JsonCoding<Uuid> {
    static Json encode(const Uuid& value) { return value.text(); }
    static Result<Uuid, JsonProblem> decode(const Json& document)
    {
        const auto uuid = document.is_string()
            ? Uuid::fromText(document.get_ref<const std::string&>())
            : std::nullopt;
        if (!uuid)
            return fail(JsonProblem{"", "is not a UUID"});
        return *uuid;
    }
};

template <typename Element>
struct JsonCoding<std::vector<Element>> {
    static Json encode(const std::vector<Element>& values)
    {
        auto document = Json::array();
        for (const auto& value : values)
            document.push_back(toJson(value));
        return document;
    }
    static Result<std::vector<Element>, JsonProblem> decode(const Json& document)
    {
        if (!document.is_array())
            return fail(JsonProblem{"", "is not a list"});
        std::vector<Element> values;
        values.reserve(document.size());
        for (const auto& item : document) {
            auto value = fromJson<Element>(item);
            if (!value)
                return fail(within(std::to_string(values.size()), value.error()));
            values.push_back(*std::move(value));
        }
        return values;
    }
};

template <typename Element>
struct JsonCoding<std::map<std::string, Element>> {
    static Json encode(const std::map<std::string, Element>& values)
    {
        auto document = Json::object();
        for (const auto& [key, value] : values)
            document[key] = toJson(value);
        return document;
    }
    static Result<std::map<std::string, Element>, JsonProblem> decode(const Json& document)
    {
        if (!document.is_object())
            return fail(JsonProblem{"", "is not an object"});
        std::map<std::string, Element> values;
        for (const auto& [key, item] : document.items()) {
            auto value = fromJson<Element>(item);
            if (!value)
                return fail(within(key, value.error()));
            values.insert_or_assign(key, *std::move(value));
        }
        return values;
    }
};

} // namespace brindlex
