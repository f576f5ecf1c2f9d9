#pragma once

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>
#include <tuple>
#include <type_traits>

namespace brindlex {

/// A JSON document; objects keep their keys in the order of insertion. Whoever looks into one
/// includes `Json.h`.
using Json = nlohmann::ordered_json;

/// Where a document does not have the declared form, and what is wrong there.
struct JsonProblem {
    std::string path{};
    std::string reason{};

    bool operator==(const JsonProblem&) const = default;
};

/// How a value is written as JSON and read back. Records with a form, enumerations with stored
/// values and what they are made of have theirs in `JsonCoding.h`; any other type declares its own
/// beside itself and defines it in its source, so that its readers need no JSON library.
template <typename Value>
struct JsonCoding;

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

/// A missing key gives what `compute` returns at the time of reading.
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

/// A record that declares its form as `static constexpr auto jsonForm()`, a tuple of `JsonField`
/// for all of its fields; whoever codes it proves at compile time that none is forgotten. Where it
/// also has a member `afterDecoding()`, reading ends with that.
template <typename Record>
concept HasJsonForm = std::is_class_v<Record> && requires
{
    Record::jsonForm();
};

} // namespace brindlex
