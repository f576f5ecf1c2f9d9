#pragma once

#include <cstddef>
#include <utility>

namespace brindlex {

namespace detail {

struct AnyField {
    template <typename Field>
    operator Field() const;
};

template <typename Record, std::size_t... index>
constexpr bool acceptsFields(std::index_sequence<index...>)
{
    return requires { Record{(static_cast<void>(index), AnyField{})...}; };
}

} // namespace detail

/// How many fields an aggregate has.
template <typename Record, std::size_t count = 0>
constexpr std::size_t fieldCount()
{
    if constexpr (detail::acceptsFields<Record>(std::make_index_sequence<count + 1>{}))
        return fieldCount<Record, count + 1>();
    else
        return count;
}

} // namespace brindlex
