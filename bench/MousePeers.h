#pragma once

#include "support/processes/ChildProcess.h"
#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"

#include <memory>
#include <string>

namespace brindlex {

/// Whether the program is found in the folders of `PATH`.
bool isInstalled(const std::string& program);

/// Starts xbindkeys with the command on the middle button, and waits until it holds the button;
/// null when it does not.
std::unique_ptr<ChildProcess> startXbindkeys(
    const VirtualDesktop& desktop, const XConnection& server, const std::string& command);

/// Starts imwheel, which plays each notch of the wheel once, and waits until it holds the wheel;
/// null when it does not.
std::unique_ptr<ChildProcess> startImwheel(
    const VirtualDesktop& desktop, const XConnection& server);

} // namespace brindlex
