#pragma once

#include "foundation/Date.h"
#include "foundation/Geometry.h"

#include <memory>
#include <optional>
#include <string>

namespace brindlex {

/// A thing on the screen as another program describes it. Each value is requested anew; one that
/// fails, or takes longer than the messaging time-out, is absent. Main thread only.
///
/// Roles are those of the accessibility interface of macOS, such as "AXWindow" and "AXSplitter".
class AccessibilityElement {
public:
    virtual ~AccessibilityElement() = default;

    /// How long each of the following may take.
    virtual void setMessagingTimeout(Seconds timeout) = 0;

    virtual std::optional<std::string> role() = 0;
    virtual std::optional<std::string> subrole() = 0;
    virtual std::optional<std::string> roleDescription() = 0;
    virtual std::shared_ptr<AccessibilityElement> parent() = 0;
    virtual std::shared_ptr<AccessibilityElement> window() = 0;
    virtual std::optional<Point> position() = 0;
    virtual std::optional<Size> size() = 0;
};

/// The things on the screen. Main thread only.
class AccessibilityTree {
public:
    virtual ~AccessibilityTree() = default;

    /// The deepest element at the point; null when there is none or none comes within `timeout`.
    virtual std::shared_ptr<AccessibilityElement> elementAt(Point point, Seconds timeout) = 0;
};

} // namespace brindlex
