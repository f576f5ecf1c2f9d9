#pragma once

#include "foundation/Geometry.h"

#include <cstdint>
#include <optional>
#include <string>

namespace brindlex {

/// What is known of one reading of the cursor.
struct MouseCursorDiagnosticItem {
    /// "currentSystem" or "current".
    std::string source{};
    /// The name of the resize cursor that it is, if it is one.
    std::optional<std::string> matchedName{};
    std::optional<Point> hotSpot{};
    std::optional<Size> imageSize{};
    std::optional<std::int64_t> imageHash{};

    /// Whether both show the same cursor; source and name play no part.
    bool operator==(const MouseCursorDiagnosticItem& other) const
    {
        return hotSpot == other.hotSpot && imageSize == other.imageSize
            && imageHash == other.imageHash;
    }

    /// For the log.
    std::string text() const;
};

/// Both readings of one moment.
struct MouseCursorDiagnosticSnapshot {
    MouseCursorDiagnosticItem currentSystem{};
    MouseCursorDiagnosticItem current{};

    bool operator==(const MouseCursorDiagnosticSnapshot&) const = default;

    /// The name of the resize cursor that either reading is.
    bool isResizeCursor() const { return currentSystem.matchedName || current.matchedName; }

    /// Whether another program shows a cursor of its own making.
    bool isCustomSystemCursor() const;

    /// For the log.
    std::string text() const;
};

} // namespace brindlex
