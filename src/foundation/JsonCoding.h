#pragma once

#include "foundation/Date.h"
#include "foundation/FieldCount.h"
#include "foundation/Json.h"
#include "foundation/JsonEnumeration.h"
#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"

#include <cmath>
#include <concepts>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace brindlex {

/// The value as a document, by its coding:
///
///     static Json encode(const Value&);
///     static Result<Value, JsonProblem> decode(const Json&);
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
        // Each key is another one; `operator[]` would look at all that are there to find out.
        auto& members = document.template get_ref<Json::object_t&>();
        members.reserve(values.size());
        for (const auto& [key, value] : values)
            members.emplace_back(key, toJson(value));
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

template <HasStoredValues Enumeration>
struct JsonCoding<Enumeration> {
    using Stored = std::decay_t<decltype(storedValue(Enumeration{}))>;
    using Decoded = std::conditional_t<std::is_integral_v<Stored>, Stored, std::string>;

    static Json encode(Enumeration value) { return storedValue(value); }
    static Result<Enumeration, JsonProblem> decode(const Json& document)
    {
        const auto stored = fromJson<Decoded>(document);
        if (!stored)
            return fail(stored.error());
        const auto value = caseWithStoredValue<Enumeration>(*stored);
        if (!value)
            return fail(JsonProblem{"", "is not a value of the enumeration"});
        return *value;
    }
};

/// Whether the declared form names as many fields as the record has.
template <HasJsonForm Record>
constexpr bool jsonFormIsComplete
    = std::tuple_size_v<decltype(Record::jsonForm())> == fieldCount<Record>();

template <HasJsonForm Record>
struct JsonCoding<Record> {
    static_assert(jsonFormIsComplete<Record>);

    static Json encode(const Record& record)
    {
        auto document = Json::object();
        std::apply([&](const auto&... field) { (write(field, record, document), ...); },
            Record::jsonForm());
        return document;
    }

    static Result<Record, JsonProblem> decode(const Json& document)
    {
        if (!document.is_object())
            return fail(JsonProblem{"", "is not an object"});
        Record record{};
        std::optional<JsonProblem> problem;
        std::apply([&](const auto&... field) { (read(field, document, record, problem), ...); },
            Record::jsonForm());
        if (problem)
            return fail(*std::move(problem));
        if constexpr (requires { record.afterDecoding(); })
            record.afterDecoding();
        return record;
    }

private:
    template <typename Member, MissingKey missing>
    static void write(
        const JsonField<Record, Member, missing>& field, const Record& record, Json& document)
    {
        const Member& value = record.*field.member;
        if constexpr (missing == MissingKey::isAbsent) {
            if (value)
                document[field.key] = toJson(*value);
        } else {
            document[field.key] = toJson(value);
        }
    }

    template <typename Member, MissingKey missing>
    static void read(const JsonField<Record, Member, missing>& field, const Json& document,
        Record& record, std::optional<JsonProblem>& problem)
    {
        if (problem)
            return;
        const auto found = document.find(field.key);
        const bool isMissing
            = found == document.end() || (missing != MissingKey::isAProblem && found->is_null());
        if (isMissing) {
            if constexpr (missing == MissingKey::isAProblem)
                problem = JsonProblem{field.key, "is missing"};
            else if constexpr (missing == MissingKey::isComputed)
                record.*field.member = field.compute();
            return;
        }
        using Stored = typename StoredType<Member>::Type;
        auto value = fromJson<Stored>(*found);
        if (value)
            record.*field.member = *std::move(value);
        else
            problem = within(field.key, value.error());
    }

    template <typename Member>
    struct StoredType {
        using Type = Member;
    };
    template <typename Member>
    struct StoredType<std::optional<Member>> {
        using Type = Member;
    };
};

} // namespace brindlex
