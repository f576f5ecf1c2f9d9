#pragma once

#include <QRegion>
#include <QSize>

namespace brindlex {

/// That of panels with a view in them, in logical pixels.
inline constexpr int panelCornerRadius = 14;

/// A rectangle of this size with round corners, as the shape of a window. Needs the Qt application.
QRegion roundedRegion(const QSize& size, int radius);

} // namespace brindlex
