#pragma once

#include "platform/AccessibilityTree.h"
#include "platform/WindowList.h"

namespace brindlex {

/// How far outside a window its list entry still counts, in points: the entry may leave out the
/// frame.
inline constexpr double windowListMargin = 32;

/// How near to an edge a press resizes, in points.
inline constexpr double windowEdgeTolerance = 8;

/// Whether the point is at most `margin` away from the line of an edge of the rectangle, and within
/// the rectangle enlarged by `margin`. Never for an empty rectangle or a margin of 0.
bool isNearEdge(Point point, const Rect& rectangle, double margin);

/// Whether the point is on the edge of the window that it hits, by the list of windows first and by
/// the accessibility tree's more exact frame second. `unitsPerPoint` is the size of a point in
/// their coordinates.
bool isOnWindowEdge(
    WindowList& windows, AccessibilityTree& tree, Point point, double unitsPerPoint);

} // namespace brindlex
