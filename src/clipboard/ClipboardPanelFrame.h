#pragma once

#include "platform/ScreenReading.h"

#include <optional>

namespace brindlex {

/// Where a panel of this size comes on the screen that the pointer is on, or on the main one where
/// it is on none: in the middle from left to right, 22 percent of the height below the top, and not
/// below the bottom, all of what the desktop leaves to windows. What is higher than that sticks out
/// at the top. Nothing where there is no screen.
std::optional<Rect> clipboardPanelFrame(Size panel, const ScreenLayout& layout);

} // namespace brindlex
