#pragma once

#include "applications/ApplicationChoices.h"
#include "foundation/Subscription.h"
#include "platform/RunningApplications.h"

#include <string>
#include <vector>

namespace brindlex {

/// Remembers in which order applications came to the front since it was made. The applications
/// outlive it. Main thread only.
class ApplicationRecency {
public:
    explicit ApplicationRecency(RunningApplications& applications);

    /// What is known at the moment.
    ApplicationUse use() const;

private:
    void note(const std::optional<RunningApplication>& application);

    RunningApplications& applications_;
    std::vector<std::string> recent_;
    Subscription activations_;
};

} // namespace brindlex
