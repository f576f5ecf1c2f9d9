#pragma once

#include <concepts>
#include <utility>
#include <variant>

namespace brindlex {

/// Marks a value as the failure side of a `Result`. Made by `fail`.
template <typename Problem>
struct Failure {
    Problem problem;
};

template <typename Problem>
Failure<Problem> fail(Problem problem)
{
    return {std::move(problem)};
}

/// Either a value or the problem that prevented it.
///
/// The operations are the part of `std::expected` that the program uses, so that the class can
/// become an alias once the toolchains have it. `value` of a failure and `error` of a success are
/// errors of the caller.
template <typename Value, typename Problem>
class [[nodiscard]] Result {
public:
    Result(Value value) : content_(std::in_place_index<0>, std::move(value)) { }
    template <std::convertible_to<Problem> Cause>
    Result(Failure<Cause> failure) : content_(std::in_place_index<1>, std::move(failure.problem))
    {
    }

    explicit operator bool() const { return content_.index() == 0; }

    const Value& value() const { return std::get<0>(content_); }
    const Problem& error() const { return std::get<1>(content_); }

    const Value& operator*() const { return value(); }
    const Value* operator->() const { return &value(); }

    bool operator==(const Result&) const = default;

private:
    std::variant<Value, Problem> content_;
};

/// The value of an operation that returns nothing but its success.
using Done = std::monostate;

} // namespace brindlex
