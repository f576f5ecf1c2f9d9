#pragma once

#include "support/VirtualDesktop.h"

#include <string>

namespace brindlex {

/// Installs an application for the user whose windows have a class of this name, and answers its
/// identifier.
std::string installApplication(const VirtualDesktop& desktop, const std::string& className);

/// The identifier of such an application.
std::string identifierOf(const std::string& className);

} // namespace brindlex
