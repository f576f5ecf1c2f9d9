#include "mouse/WindowEdge.h"

#include "mouse/ResizeControlSearch.h"

#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

/// The bounds of the frontmost ordinary window at the point.
std::optional<Rect> windowAt(WindowList& windows, Point point, double margin)
{
    for (const auto& window : windows.onScreen())
        if (window.layer == 0 && window.alpha && *window.alpha > 0 && window.bounds
            && !window.bounds->isEmpty() && window.bounds->containsWithin(margin, point))
            return window.bounds;
    return {};
}

std::optional<Rect> frameOf(AccessibilityElement& element)
{
    const auto position = element.position();
    const auto size = element.size();
    if (!position || !size)
        return {};
    return Rect{*position, *size};
}

/// The frame of the window at the point, as its program reports it.
std::optional<Rect> accessibilityFrameAt(AccessibilityTree& tree, Point point)
{
    const auto element = tree.elementAt(point, accessibilityMessagingTimeout);
    if (!element)
        return {};
    element->setMessagingTimeout(accessibilityMessagingTimeout);
    if (const auto window = element->window()) {
        window->setMessagingTimeout(accessibilityMessagingTimeout);
        if (const auto frame = frameOf(*window))
            return frame;
    }
    if (element->role() == "AXWindow")
        return frameOf(*element);
    return {};
}

} // namespace

bool isNearEdge(Point point, const Rect& rectangle, double margin)
{
    if (!(margin > 0) || rectangle.isEmpty() || !rectangle.containsWithin(margin, point))
        return false;
    const double nearest
        = std::min({std::abs(point.x - rectangle.minX()), std::abs(point.x - rectangle.maxX()),
            std::abs(point.y - rectangle.minY()), std::abs(point.y - rectangle.maxY())});
    return nearest <= margin;
}

bool isOnWindowEdge(WindowList& windows, AccessibilityTree& tree, Point point, double unitsPerPoint)
{
    const double margin = windowListMargin * unitsPerPoint;
    const auto bounds = windowAt(windows, point, margin);
    if (!bounds || !isNearEdge(point, *bounds, margin))
        return false;
    const auto frame = accessibilityFrameAt(tree, point).value_or(*bounds);
    return isNearEdge(point, frame, windowEdgeTolerance * unitsPerPoint);
}

} // namespace brindlex
