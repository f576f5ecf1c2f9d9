#pragma once

#include <concepts>
#include <string>

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

/// A preference as a record.
template <typename ValueType>
struct PreferenceKey {
    using Value = ValueType;

    Value defaultValue{};
    std::string key{};

    bool operator==(const PreferenceKey&) const = default;
};
static_assert(UserDefaultPreferenceKey<PreferenceKey<bool>>);

} // namespace brindlex
