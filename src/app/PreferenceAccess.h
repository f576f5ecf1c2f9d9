#pragma once

#include "app/PreferenceForm.h"
#include "app/PreferenceKey.h"
#include "platform/UserDefaults.h"

namespace brindlex {

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
