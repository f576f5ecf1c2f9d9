#pragma once

#include "support/screen/VirtualDesktop.h"

#include <string>

namespace brindlex {

/// Installs an application for the user, whose windows have a class of this name.
void installApplication(
    const VirtualDesktop& desktop, const std::string& identifier, const std::string& className);

} // namespace brindlex
