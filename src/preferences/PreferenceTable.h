#pragma once

#include "foundation/FieldCount.h"
#include "log/Log.h"
#include "preferences/PreferenceKey.h"

#include <tuple>

namespace brindlex {

/// Whether a record whose fields are preferences names them all, in their order, in
/// `static constexpr auto members()`, a tuple of pointers to members.
template <typename Table>
constexpr bool namesAllPreferences
    = std::tuple_size_v<decltype(Table::members())> == fieldCount<Table>();

/// Stores the default of each preference of the table under which nothing is stored, in the order
/// of the table. Left out are those whose absence means something. What is stored and cannot be
/// read stays, with a line in the log.
template <typename Table>
void seedDefaults(UserDefaultsType& defaults, const Table& table)
{
    static_assert(namesAllPreferences<Table>);
    const auto seed = [&]<UserDefaultPreferenceKey Key>(const Key& key) {
        const auto object = defaults.value(key.key);
        if (!object && Key::seeding == Seeding::atStart)
            writePreference(defaults, key, key.defaultValue);
        if (object && !PreferenceForm<typename Key::Value>::read(*object))
            Log::warn("The preference \"" + key.key + "\" cannot be read; the default applies",
                logCategory::lifecycle);
    };
    std::apply([&](const auto... member) { (seed(table.*member), ...); }, Table::members());
}

} // namespace brindlex
