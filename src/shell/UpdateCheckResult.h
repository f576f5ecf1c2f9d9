#pragma once

#include "foundation/Cases.h"
#include "platform/HttpReading.h"
#include "shell/UpdateFeed.h"

#include <string>

namespace brindlex {

/// What a look for a newer version of the program found.
struct UpdateCheckResult {
    enum class Reason { unreachable, timedOut, tooLarge, malformed, status, insecureRedirect };

    /// This is the newest version.
    struct Current {
        bool operator==(const Current&) const = default;
    };
    /// There is a newer one.
    struct Newer {
        UpdateFeed feed{};
        bool operator==(const Newer&) const = default;
    };
    /// It is not known. The detail is in the system's words, or the number of a status.
    struct Failed {
        Reason reason = Reason::unreachable;
        std::string detail{};
        bool operator==(const Failed&) const = default;
    };
    using Any = Cases<Current, Newer, Failed>;
};

/// What the reply to the question for the feed means to a program of this version. To one whose
/// version is no semantic version every version is newer.
UpdateCheckResult::Any updateCheckResult(
    const Result<std::string, HttpProblem>& reply, const std::string& ownVersion);

} // namespace brindlex
