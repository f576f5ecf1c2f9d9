#pragma once

#include <chrono>
#include <functional>
#include <optional>

namespace brindlex {

/// How long a test waits for something that should be there at once.
inline constexpr std::chrono::milliseconds usualDeadline{20'000};

/// Asks again and again until the condition holds; whether it did so before the deadline.
///
/// The deadline only bounds a failing test: one that passes goes on at the first success. A long
/// wait that fails prints what is there instead (`StateReport`).
bool eventually(
    const std::function<bool()>& condition, std::chrono::milliseconds deadline = usualDeadline);

/// Whether the condition holds at every one of the many times it is asked during the period.
bool throughout(std::chrono::milliseconds period, const std::function<bool()>& condition);

/// Whether a count that never falls is there before the period and the same after it. It is not
/// asked for meanwhile, so that whoever is counted can go on with the work.
bool staysTheSame(
    std::chrono::milliseconds period, const std::function<std::optional<long>()>& count);

} // namespace brindlex
