#pragma once

#include <chrono>
#include <cstddef>

namespace brindlex {

/// How long and how much other applications may take.
struct PasteboardLimits {
    /// Until the next sign of life from an application that is to send something, or to take it.
    std::chrono::milliseconds silence{2'000};
    /// For all that is requested of one copy.
    std::chrono::milliseconds owner{30'000};
    /// Of one target.
    std::size_t bytes = 128 * 1024 * 1024;
    /// For the session's clipboard manager to take what is there when the program ends.
    std::chrono::milliseconds handover{500};

    bool operator==(const PasteboardLimits&) const = default;
};

} // namespace brindlex
