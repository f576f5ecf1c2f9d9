#pragma once

#include <chrono>

namespace brindlex {

/// How long a worker thread waits for the accessible trees of other programs.
///
/// A reply takes about 0.2 ms. A browser that loads a page, or a computer that compiles, takes
/// tens of milliseconds, and one that is stuck never replies.
struct AccessibilityLimits {
    std::chrono::milliseconds perQuestion{100};
    /// For all questions since the reading began.
    std::chrono::milliseconds perReading{250};
};

} // namespace brindlex
