#pragma once

#include "platform/linux/OpenWindow.h"
#include "platform/linux/RecentWindows.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/X11RunningApplications.h"

#include <vector>

namespace brindlex {

/// The windows of all virtual desktops that a user would name, minimised ones too, the last used
/// first. Panels, desktops, notifications and what wants to be in no task bar are not among them.
/// Costs a few round trips for all windows together.
std::vector<OpenWindow> openWindows(X11Connection& connection,
    const X11RunningApplications& applications, const RecentWindows& recent);

} // namespace brindlex
