#pragma once

#include "foundation/Geometry.h"
#include "platform/linux/accessibility/AccessibilityBus.h"
#include "platform/linux/windows/X11WindowAtPoint.h"

#include <chrono>
#include <optional>
#include <string>

namespace brindlex {

/// Reads what programs report to assistive technology about the things in their windows.
///
/// Each question has its own time, after which it has no result. One worker thread only.
class AccessibleElementReader {
public:
    using Clock = std::chrono::steady_clock;

    /// A thing in a window.
    struct Element {
        AccessibleObject object{};
        /// The window of the program that it lies in.
        AccessibleObject frame{};
        /// Where coordinates begin: programs that do not know where they are on the screen count
        /// from the corner of their window.
        std::optional<Point> windowOrigin{};
        bool isDeepest = false;

        bool operator==(const Element&) const = default;
    };

    AccessibleElementReader();

    /// The deepest element at the point of the screen, of the process whose window lies there.
    std::optional<Element> elementAt(
        const X11WindowAtPoint& window, Point point, Clock::time_point deadline);

    std::optional<std::string> role(const Element& element, Clock::time_point deadline);
    std::optional<std::string> roleName(const Element& element, Clock::time_point deadline);
    std::optional<Element> parent(const Element& element, Clock::time_point deadline);
    std::optional<Rect> frame(const Element& element, Clock::time_point deadline);

private:
    enum class Coordinates : unsigned { ofScreen, ofWindow };

    bool begin(Clock::time_point deadline);
    std::optional<AccessibleObject> application(std::int64_t process);
    std::optional<AccessibleObject> frameOf(
        const AccessibleObject& application, const X11WindowAtPoint& window, Point point);
    std::optional<AccessibleObject> deepestAt(
        const AccessibleObject& frame, Point point, Coordinates coordinates);
    std::optional<AccessibleObject> childAt(
        const AccessibleObject& object, Point point, Coordinates coordinates);
    std::optional<Rect> extents(const AccessibleObject& object, Coordinates coordinates);
    std::optional<Rect> frameNow(const Element& element);

    AccessibilityBus bus_;
};

} // namespace brindlex
