#pragma once

#include <type_traits>
#include <utility>
#include <variant>

namespace brindlex {

/// A choice between alternatives with payloads, to be taken apart by `match`.
///
/// A concept lists its alternatives in a namespace-like struct and names the choice itself `Any`:
///
///     struct Shape {
///         struct Circle { double radius{}; bool operator==(const Circle&) const = default; };
///         struct Square { double side{}; bool operator==(const Square&) const = default; };
///         using Any = Cases<Circle, Square>;
///     };
template <typename... Alternatives>
using Cases = std::variant<Alternatives...>;

template <typename... Arms>
struct MatchArms : Arms... {
    using Arms::operator()...;
};

/// Calls the arm that accepts the alternative held by `choice` and returns what it returns.
///
/// Write one arm per alternative: a missing arm does not compile, which is the reason to prefer
/// this over a chain of `std::get_if`.
template <typename Choice, typename... Arms>
decltype(auto) match(Choice&& choice, Arms&&... arms)
{
    return std::visit(MatchArms<std::decay_t<Arms>...>{std::forward<Arms>(arms)...},
        std::forward<Choice>(choice));
}

} // namespace brindlex
