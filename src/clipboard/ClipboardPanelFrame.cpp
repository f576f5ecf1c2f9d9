#include "clipboard/ClipboardPanelFrame.h"

#include <algorithm>

namespace brindlex {
namespace {

/// How far the panel is from the top, in heights of the screen.
constexpr double distanceFromTop = 0.22;

/// Whether the point is in the frame, of which the right and the lower edge belong to the
/// neighbours.
bool contains(const Rect& frame, Point point)
{
    return point.x >= frame.minX() && point.x < frame.maxX() && point.y >= frame.minY()
        && point.y < frame.maxY();
}

} // namespace

std::optional<Rect> clipboardPanelFrame(Size panel, const ScreenLayout& layout)
{
    const auto& screens = layout.screens;
    if (screens.empty())
        return {};
    const auto found = std::find_if(screens.begin(), screens.end(),
        [&](const Screen& screen) { return contains(screen.frame, layout.pointer); });
    const auto& area = (found == screens.end() ? screens.front() : *found).visibleFrame;
    const double left = area.minX() + area.size.width / 2 - panel.width / 2;
    const double top = area.minY() + distanceFromTop * area.size.height;
    return Rect{{left, std::min(top, area.maxY() - panel.height)}, panel};
}

} // namespace brindlex
