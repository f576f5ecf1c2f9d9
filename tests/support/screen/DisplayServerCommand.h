#pragma once

#include "support/screen/VirtualDesktop.h"

#include <string>
#include <vector>

namespace brindlex {

/// What starts an X server with the screen and the hardware that the options say; writes the
/// configuration that it needs into a folder of the desktop.
std::vector<std::string> displayServerCommand(
    const VirtualDesktop& desktop, const VirtualDesktop::Options& options);

} // namespace brindlex
