#pragma once

#include "inputmethod/SwitchEnvironment.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brindlex {

/// The little of a computer that the switching of input sources sees, with everything open to the
/// test.
struct SwitchComputer {
    Date now{1000};
    /// The system clock, told apart from `now`.
    Date systemTime{800'000'000};
    std::optional<std::string> inputSourceID{};
    /// The display names by identifier; a source without one has none.
    std::map<std::string, std::string> names{};
    /// Sources whose selection fails.
    std::set<std::string> refusedSources{};
    std::set<std::string> browsers{};
    std::optional<std::string> frontmostBundleID{};
    std::optional<std::string> page{};

    std::string whyUndone{};

    /// Every selection asked for, oldest first.
    std::vector<std::string> selections{};
    /// Every switch noted, oldest first.
    std::vector<InputMethodSwitchDecision> switches{};
    /// Every decision for the source that was selected already, oldest first.
    std::vector<InputMethodSwitchDecision> agreements{};
    /// The names of the functions called, oldest first.
    std::vector<std::string> calls{};

    /// Valid as long as the computer stays where it is.
    SwitchEnvironment environment();
};

} // namespace brindlex
