#pragma once

#include "foundation/JsonCoding.h"
#include "preferences/PreferenceKey.h"

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// Whether every number of the document can stand in JSON, which has no infinities and no NaN.
bool hasOnlyFiniteNumbers(const Json& document);

/// A value that preferences keep as the text of its JSON encoding. Where somebody has written the
/// JSON itself in place of that text, it is read as what it is.
template <typename Value>
struct UserDefaultsStorageBox {
    Value value{};

    bool operator==(const UserDefaultsStorageBox&) const = default;

    /// The value as compact JSON with the keys in the order of its form; empty when the value
    /// cannot be encoded.
    std::string rawValue() const
    {
        const auto document = toJson(value);
        return hasOnlyFiniteNumbers(document) ? jsonText(document) : std::string();
    }

    /// Nothing for any text that is not such an encoding.
    static std::optional<UserDefaultsStorageBox> fromRawValue(std::string_view text)
    {
        const auto document = parseJson(text);
        if (!document)
            return {};
        const auto decoded = fromJson<Value>(*document);
        if (!decoded)
            return {};
        return UserDefaultsStorageBox{*decoded};
    }
};

template <typename Value>
PreferenceValue PreferenceForm<Value>::stored(const Value& value)
{
    return UserDefaultsStorageBox<Value>{value}.rawValue();
}

template <typename Value>
std::optional<Value> PreferenceForm<Value>::read(const PreferenceValue& object)
{
    const auto json = std::get_if<PreferenceJson>(&object);
    const auto text = json ? &json->text : std::get_if<std::string>(&object);
    auto box = text ? UserDefaultsStorageBox<Value>::fromRawValue(*text) : std::nullopt;
    if (!box)
        return {};
    return std::move(box->value);
}

} // namespace brindlex
