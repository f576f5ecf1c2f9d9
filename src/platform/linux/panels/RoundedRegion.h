#pragma once

#include <QRegion>
#include <QSize>

namespace brindlex {

/// A rectangle of this size with round corners, as the shape of a window. Needs the Qt application.
QRegion roundedRegion(const QSize& size, int radius);

} // namespace brindlex
