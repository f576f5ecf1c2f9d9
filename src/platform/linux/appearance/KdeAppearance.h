#pragma once

#include "platform/linux/appearance/DesktopAppearance.h"

#include <string_view>

namespace brindlex {

/// What a `kdeglobals` says: dark where the ground of windows is nearer to black, the accent colour
/// or, without one, that of what is selected, the font, and no motion where animations take no
/// time. What is damaged is not said.
StatedAppearance kdeAppearance(std::string_view text);

} // namespace brindlex
