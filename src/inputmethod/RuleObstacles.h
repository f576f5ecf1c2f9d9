#pragma once

#include "inputmethod/InputMethodRule.h"
#include "platform/ApplicationBundles.h"
#include "platform/KeyboardInputSources.h"
#include "platform/RunningApplications.h"

#include <set>
#include <string>
#include <vector>

namespace brindlex {

/// Says in the log what keeps rules from ever applying: once of each input source and of each
/// application that is not there, with what there is instead. Main thread only.
class RuleObstacles {
public:
    RuleObstacles(KeyboardInputSources& sources, ApplicationBundles& bundles,
        const RunningApplications& applications);

    /// Looks at a source that could not be selected.
    void checkSource(const std::string& id);

    /// Looks at the applications of all rules: each has to be installed or running, or to have an
    /// identifier that is made of its windows.
    void checkApplications(const std::vector<InputMethodRule>& rules);

private:
    KeyboardInputSources& sources_;
    ApplicationBundles& bundles_;
    const RunningApplications& applications_;
    std::set<std::string> reportedSources_;
    std::set<std::string> reportedApplications_;
};

} // namespace brindlex
