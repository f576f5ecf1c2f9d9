#pragma once

#include "app/UserDefaultsStorageBox.h"
#include "foundation/JsonEnumeration.h"
#include "platform/UserDefaults.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace brindlex {

/// The types whose values can be written to the defaults as they are.
template <typename Value>
concept UserDefaultsStorable = std::same_as<Value, bool> || std::same_as<Value,
    std::int64_t> || std::same_as<Value, double> || std::same_as<Value,
    std::string> || std::same_as<Value, std::vector<std::string>>;

/// The enumerations whose cases are stored as texts.
template <typename Value>
concept TextEnumeration = HasStoredValues<Value> && requires(Value value)
{
    {
        storedValue(value)
        } -> std::convertible_to<std::string>;
};

/// How values of a type stand in the defaults: as they are, as the raw value of an enumeration, or
/// else in a box. Reading gives nothing for an object of any other form.
template <typename Value>
struct PreferenceForm {
    static PreferenceValue stored(const Value& value)
    {
        return UserDefaultsStorageBox<Value>{value}.rawValue();
    }
    static std::optional<Value> read(const PreferenceValue& object)
    {
        const auto text = std::get_if<std::string>(&object);
        auto box = text ? UserDefaultsStorageBox<Value>::fromRawValue(*text) : std::nullopt;
        if (!box)
            return {};
        return std::move(box->value);
    }
};

template <UserDefaultsStorable Value>
struct PreferenceForm<Value> {
    static PreferenceValue stored(const Value& value) { return value; }
    static std::optional<Value> read(const PreferenceValue& object)
    {
        const auto value = std::get_if<Value>(&object);
        return value ? std::optional(*value) : std::nullopt;
    }
};

template <TextEnumeration Value>
struct PreferenceForm<Value> {
    static PreferenceValue stored(Value value) { return std::string(storedValue(value)); }
    static std::optional<Value> read(const PreferenceValue& object)
    {
        const auto text = std::get_if<std::string>(&object);
        return text ? caseWithStoredValue<Value>(*text) : std::nullopt;
    }
};

} // namespace brindlex
