#pragma once

#include "platform/AccessibilityTree.h"

#include <string>
#include <vector>

namespace brindlex {

/// How long one program may take to reply about one element.
inline constexpr Seconds accessibilityMessagingTimeout = 0.03;

/// Whether a point lies on something to resize with, such as the divider of a split view.
struct ResizeControlSearch {
    bool isFound = false;
    /// The elements that were looked at, from the deepest upward, for the log.
    std::vector<std::string> entries{};

    bool operator==(const ResizeControlSearch&) const = default;

    /// For the log.
    std::string summary() const;
};

/// Looks at the element at the point and at three of its ancestors. Whatever cannot be read counts
/// as not found.
ResizeControlSearch searchResizeControl(AccessibilityTree& tree, Point point);

} // namespace brindlex
