#pragma once

#include "foundation/Cases.h"
#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

namespace brindlex {

/// Two hashes as one; the order counts.
constexpr std::size_t combinedHash(std::size_t one, std::size_t other)
{
    return one ^ (other + 0x9E3779B97F4A7C15 + (one << 6) + (one >> 2));
}

template <typename Element>
std::size_t hashValue(const std::vector<Element>& values);
template <typename Value>
std::size_t hashValue(const std::optional<Value>& value);
template <typename... Alternatives>
std::size_t hashValue(const std::variant<Alternatives...>& choice);

/// A hash over all of a value, equal for equal values: of a record over the fields of its declared
/// form, of a list over its elements, of a choice over the alternative and its payload.
template <typename Value>
std::size_t hashValue(const Value& value)
{
    if constexpr (HasJsonForm<Value>)
        return std::apply(
            [&](const auto&... field) {
                std::size_t hash = 0;
                ((hash = combinedHash(hash, hashValue(value.*field.member))), ...);
                return hash;
            },
            Value::jsonForm());
    else if constexpr (std::is_empty_v<Value>)
        return 0;
    else
        return std::hash<Value>()(value);
}

template <typename Element>
std::size_t hashValue(const std::vector<Element>& values)
{
    auto hash = values.size();
    for (const auto& value : values)
        hash = combinedHash(hash, hashValue(value));
    return hash;
}

template <typename Value>
std::size_t hashValue(const std::optional<Value>& value)
{
    return value ? combinedHash(1, hashValue(*value)) : 0;
}

template <typename... Alternatives>
std::size_t hashValue(const std::variant<Alternatives...>& choice)
{
    return combinedHash(choice.index(),
        std::visit([](const auto& alternative) { return hashValue(alternative); }, choice));
}

} // namespace brindlex

/// Records can be keys.
template <brindlex::HasJsonForm Record>
struct std::hash<Record> {
    std::size_t operator()(const Record& record) const { return brindlex::hashValue(record); }
};
