#pragma once

#include "support/screen/XConnection.h"

namespace brindlex {

/// Gives the screen a calm background, so that pictures of it look like a desktop.
void paintWallpaper(const XConnection& server);

} // namespace brindlex
