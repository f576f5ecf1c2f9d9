#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace brindlex {

/// What stands in the words of a wait that fails: what is there instead of what was waited for.
///
/// As long as the object exists, its description is part of `presentState`. On the main thread
/// only.
class StateReport {
public:
    using Describe = std::function<std::string()>;

    explicit StateReport(Describe describe);
    ~StateReport();
    StateReport(const StateReport&) = delete;
    StateReport& operator=(const StateReport&) = delete;
};

/// All descriptions, in the order in which their reports were made.
std::string presentState();

/// Prints the present state after a wait that has failed, unless that was so short that it may have
/// been meant to.
void reportFailedWait(std::chrono::milliseconds waited);

} // namespace brindlex
