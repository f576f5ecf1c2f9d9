#pragma once

#include "support/screen/VirtualDesktop.h"

#include <string>
#include <vector>

namespace brindlex {

/// What starts Chromium with a new profile on the desktop, in which nothing but the page is shown
/// and nothing is fetched that was not asked for. To be followed by an address.
std::vector<std::string> chromiumCommand(const VirtualDesktop& desktop);

/// The same of Firefox, with more lines of its user.js.
std::vector<std::string> firefoxCommand(
    const VirtualDesktop& desktop, const std::string& settings = {});

} // namespace brindlex
