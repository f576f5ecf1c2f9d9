#pragma once

#include "foundation/JsonCoding.h"

#include <cstddef>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

namespace brindlex {

/// What a missing key of a record means. A key with the value null counts as missing, except for a
/// required one.
enum class MissingKey { isAProblem, givesTheDefault, isComputed, isAbsent };

/// One field of a record: its key in the document, the member that holds it, and what it means if
/// the key is missing.
template <typename Record, typename Member, MissingKey missing>
struct JsonField {
    const char* key;
    Member Record::*member;
    Member (*compute)() = nullptr;
};

template <typename Record, typename Member>
constexpr auto required(const char* key, Member Record::*member)
{
    return JsonField<Record, Member, MissingKey::isAProblem>{key, member};
}

/// A missing key gives the member's initialiser.
template <typename Record, typename Member>
constexpr auto orDefault(const char* key, Member Record::*member)
{
    return JsonField<Record, Member, MissingKey::givesTheDefault>{key, member};
}

/// A missing key gives what `compute` answers at the time of reading.
template <typename Record, typename Member>
constexpr auto orComputed(const char* key, Member Record::*member, Member (*compute)())
{
    return JsonField<Record, Member, MissingKey::isComputed>{key, member, compute};
}

/// An absent value is not written, and a missing key is an absent value.
template <typename Record, typename Member>
constexpr auto omittedWhenAbsent(const char* key, std::optional<Member> Record::*member)
{
    return JsonField<Record, std::optional<Member>, MissingKey::isAbsent>{key, member};
}

/// A record that declares its form as `static constexpr auto jsonForm()`, a tuple of `JsonField`.
/// Where it also has a member `afterDecoding()`, reading ends with that.
template <typename Record>
concept HasJsonForm = std::is_class_v<Record> && requires
{
    Record::jsonForm();
};

namespace detail {

struct AnyField {
    template <typename Field>
    operator Field() const;
};

template <typename Record, std::size_t... index>
constexpr bool acceptsFields(std::index_sequence<index...>)
{
    return requires { Record{(static_cast<void>(index), AnyField{})...}; };
}

} // namespace detail

/// How many fields an aggregate has.
template <typename Record, std::size_t count = 0>
constexpr std::size_t fieldCount()
{
    if constexpr (detail::acceptsFields<Record>(std::make_index_sequence<count + 1>{}))
        return fieldCount<Record, count + 1>();
    else
        return count;
}

/// Whether the declared form names as many fields as the record has. To be asserted beside every
/// record that is stored.
template <HasJsonForm Record>
constexpr bool jsonFormIsComplete
    = std::tuple_size_v<decltype(Record::jsonForm())> == fieldCount<Record>();

template <HasJsonForm Record>
struct JsonCoding<Record> {
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
