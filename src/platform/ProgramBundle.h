#pragma once

#include <string>

namespace brindlex {

/// What the program knows of itself from its build.
struct ProgramBundle {
    std::string name{};
    /// A semantic version, such as "0.1.0".
    std::string shortVersion{};
    /// The commit that it was built from, shortened; empty outside of a repository.
    std::string commit{};
    /// Where its maker publishes the newest version; empty where there is no such place.
    std::string updateFeedURL{};

    bool operator==(const ProgramBundle&) const = default;
};

} // namespace brindlex
