#pragma once

#include "platform/UserDefaults.h"

#include <string>

namespace brindlex {

/// Remembers which version of the program ran last. Main thread only.
class AppVersionTracker {
public:
    AppVersionTracker(UserDefaults& defaults, std::string currentVersion);

    /// Stores the version that runs now. Where another one ran before, stores that one as the
    /// version updated from and says so in the log. An empty version is not recorded.
    void recordLaunch();

private:
    UserDefaults& defaults_;
    const std::string current_;
};

} // namespace brindlex
