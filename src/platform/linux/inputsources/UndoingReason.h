#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <string>
#include <vector>

namespace brindlex {

/// Who of these is likely to undo selections of the layout, and what helps, as sentences for the
/// log; empty when none is known for that. Processes go by the name that the kernel gives them.
std::string undoingReason(
    const std::string& windowManager, const std::vector<std::string>& processes);

/// The names of all processes.
std::vector<std::string> processNames();

/// The same of the window manager and the processes that run now.
std::string undoingReason(X11Connection& connection);

} // namespace brindlex
