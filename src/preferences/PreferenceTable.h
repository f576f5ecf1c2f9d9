#pragma once

#include "foundation/FieldCount.h"
#include "preferences/PreferenceKey.h"

#include <tuple>

namespace brindlex {

/// Whether a record whose fields are preferences names them all, in their order, in
/// `static constexpr auto members()`, a tuple of pointers to members.
template <typename Table>
constexpr bool namesAllPreferences
    = std::tuple_size_v<decltype(Table::members())> == fieldCount<Table>();

/// Stores the default of each preference of the table under which nothing is stored, in the order
/// of the table. Left out are those whose absence means something.
template <typename Table>
void seedDefaults(UserDefaultsType& defaults, const Table& table)
{
    static_assert(namesAllPreferences<Table>);
    const auto seed = [&]<UserDefaultPreferenceKey Key>(const Key& key) {
        if (Key::seeding == Seeding::atStart && !defaults.value(key.key))
            writePreference(defaults, key, key.defaultValue);
    };
    std::apply([&](const auto... member) { (seed(table.*member), ...); }, Table::members());
}

} // namespace brindlex
