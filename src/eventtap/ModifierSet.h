#pragma once

#include "foundation/JsonForm.h"
#include "foundation/Result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace brindlex {

/// The modifier keys of a binding or a hotkey. Compared for equality, never for "contains".
struct ModifierSet {
    std::uint64_t rawValue = 0;

    static const ModifierSet command;
    static const ModifierSet option;
    static const ModifierSet control;
    static const ModifierSet shift;

    /// The modifiers among an event's flags; all other flags are left out.
    static ModifierSet fromEventFlags(std::uint64_t flags);

    /// The modifiers as an event's flags.
    std::uint64_t eventFlags() const;

    constexpr bool contains(ModifierSet other) const
    {
        return (rawValue & other.rawValue) == other.rawValue;
    }

    /// What the settings show, such as "^ Option Shift Command"; empty for no modifiers.
    std::string displayText() const;

    friend constexpr ModifierSet operator|(ModifierSet one, ModifierSet other)
    {
        return {one.rawValue | other.rawValue};
    }
    constexpr bool operator==(const ModifierSet&) const = default;
};

inline constexpr ModifierSet ModifierSet::command{1};
inline constexpr ModifierSet ModifierSet::option{2};
inline constexpr ModifierSet ModifierSet::control{4};
inline constexpr ModifierSet ModifierSet::shift{8};

/// Stored as the plain number.
template <>
struct JsonCoding<ModifierSet> {
    static Json encode(ModifierSet value);
    static Result<ModifierSet, JsonProblem> decode(const Json& document);
};

} // namespace brindlex

template <>
struct std::hash<brindlex::ModifierSet> {
    std::size_t operator()(brindlex::ModifierSet modifiers) const noexcept
    {
        return std::hash<std::uint64_t>()(modifiers.rawValue);
    }
};
