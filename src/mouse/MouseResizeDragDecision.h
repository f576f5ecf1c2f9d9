#pragma once

#include "foundation/Geometry.h"

#include <string>

namespace brindlex {

/// Whether a press of the left button is about to resize something, and how one knows.
struct MouseResizeDragDecision {
    /// Whether a gesture has to stand aside.
    bool shouldBypass = false;
    /// "cursor", "customCursor", "axResizeControl", "windowEdge" or "none".
    std::string reason{};
    Point point{};
    std::string cursorSummary{};
    /// What the accessibility tree said, or "skipped".
    std::string accessibilitySummary{};
    bool windowEdge = false;

    bool operator==(const MouseResizeDragDecision&) const = default;

    /// For the log.
    std::string description() const;
};

} // namespace brindlex
