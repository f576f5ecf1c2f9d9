#pragma once

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

/// A preference: where it is stored and what it is as long as nothing is stored there.
template <typename Key>
concept UserDefaultPreferenceKey = requires(const Key& key)
{
    typename Key::Value;
    {
        key.defaultValue
        } -> std::convertible_to<typename Key::Value>;
    {
        key.key
        } -> std::convertible_to<std::string>;
};

/// When the default of a preference is stored: at the first start, or never, because its absence
/// means something.
enum class Seeding { atStart, never };

/// A preference as a record.
template <typename ValueType, Seeding seeded = Seeding::atStart>
struct PreferenceKey {
    using Value = ValueType;
    static constexpr Seeding seeding = seeded;

    Value defaultValue{};
    std::string key{};

    bool operator==(const PreferenceKey&) const = default;
};
static_assert(UserDefaultPreferenceKey<PreferenceKey<bool>>);

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
/// else in a box, as `UserDefaultsStorageBox.h` defines it. A type that goes into a box declares
/// its instance beside itself and defines it in its source. Reading gives nothing for an object of
/// any other form; a box may also stand there as plain JSON.
template <typename Value>
struct PreferenceForm {
    static PreferenceValue stored(const Value& value);
    static std::optional<Value> read(const PreferenceValue& object);
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

/// The stored value; the default where nothing is stored or something that is not such a value,
/// which stays as it is.
template <UserDefaultPreferenceKey Key>
typename Key::Value readPreference(const UserDefaultsType& defaults, const Key& key)
{
    const auto object = defaults.value(key.key);
    auto value = object ? PreferenceForm<typename Key::Value>::read(*object) : std::nullopt;
    return value ? *std::move(value) : key.defaultValue;
}

/// Stores the value, whatever is stored so far.
template <UserDefaultPreferenceKey Key>
void writePreference(UserDefaultsType& defaults, const Key& key, const typename Key::Value& value)
{
    defaults.set(key.key, PreferenceForm<typename Key::Value>::stored(value));
}

} // namespace brindlex
