#pragma once

#include <array>
#include <optional>
#include <type_traits>
#include <utility>

namespace brindlex {

/// The stored values of an enumeration, one row per case in declared order. An enumeration opts in
/// by a function found beside it:
///
///     constexpr auto storedValues(std::type_identity<Priority>)
///     {
///         return std::array{
///             std::pair{Priority::low, "low"},
///             std::pair{Priority::high, "high"},
///         };
///     }
template <typename Enumeration>
concept HasStoredValues = std::is_enum_v<Enumeration> && requires
{
    storedValues(std::type_identity<Enumeration>{});
};

/// All cases, in declared order.
template <HasStoredValues Enumeration>
constexpr auto allCases()
{
    constexpr auto rows = storedValues(std::type_identity<Enumeration>{});
    std::array<Enumeration, rows.size()> cases{};
    for (std::size_t row = 0; row < rows.size(); ++row)
        cases[row] = rows[row].first;
    return cases;
}

/// The stored value of a case.
template <HasStoredValues Enumeration>
constexpr auto storedValue(Enumeration wanted)
{
    constexpr auto rows = storedValues(std::type_identity<Enumeration>{});
    for (const auto& [value, stored] : rows)
        if (value == wanted)
            return stored;
    return rows.front().second;
}

/// The case with the stored value; nothing for any other value.
template <HasStoredValues Enumeration, typename Stored>
constexpr std::optional<Enumeration> caseWithStoredValue(const Stored& wanted)
{
    for (const auto& [value, stored] : storedValues(std::type_identity<Enumeration>{}))
        if (wanted == stored)
            return value;
    return {};
}

} // namespace brindlex
