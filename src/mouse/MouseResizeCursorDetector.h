#pragma once

#include "mouse/MouseCursorDiagnostic.h"
#include "mouse/MouseResizeDragDecision.h"
#include "platform/AccessibilityTree.h"
#include "platform/CursorReading.h"
#include "platform/DisplayScale.h"
#include "platform/WindowList.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// A cursor that is shown where something can be resized.
struct ResizeCursorCandidate {
    std::string name{};
    CursorImage cursor{};

    bool operator==(const ResizeCursorCandidate&) const = default;
};

/// Detects, at the instant of a press, whether the user is about to resize a window, a split view
/// or a column: from the shape of the cursor first, which asks nobody, and from the accessibility
/// tree and the list of windows second. Main thread only.
class MouseResizeCursorDetector {
public:
    MouseResizeCursorDetector(CursorReading& cursor, AccessibilityTree& accessibility,
        WindowList& windows, const DisplayScale& scale);

    MouseResizeDragDecision decide(Point point);

private:
    MouseCursorDiagnosticItem item(
        const std::string& source, const std::optional<CursorImage>& cursor);
    const std::vector<ResizeCursorCandidate>& candidates();

    CursorReading& cursor_;
    AccessibilityTree& accessibility_;
    WindowList& windows_;
    const DisplayScale& scale_;
    /// Absent until they are first needed.
    std::optional<std::vector<ResizeCursorCandidate>> candidates_;
};

} // namespace brindlex
