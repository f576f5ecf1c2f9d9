#pragma once

#include "foundation/Date.h"

#include <string>
#include <vector>

namespace brindlex {

/// Carries out what a scenario tells of, on a simulated session or a real one.
class ScenarioExecutor {
public:
    using Words = std::vector<std::string>;

    virtual ~ScenarioExecutor() = default;

    /// A line without a time: a setting, before anything happens.
    virtual void setUp(const Words& words) = 0;

    /// What happens at a time after the start. Answers what was seen of it from outside, in order.
    virtual std::vector<std::string> run(Seconds at, const Words& words) = 0;
};

/// Plays a scenario and writes it anew with what has come out of it, so that a difference between
/// both texts is what has gone otherwise.
///
///     # A comment.
///     gesture button4 right forward
///     0ms    down button4 100,100 -> swallow
std::string replayed(const std::string& scenario, ScenarioExecutor& executor);

} // namespace brindlex
