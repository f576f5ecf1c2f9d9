#pragma once

#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/linux/panels/OpenWindow.h"
#include "platform/linux/panels/RecentWindows.h"
#include "platform/linux/x11/X11Connection.h"

#include <vector>

namespace brindlex {

/// The windows of all virtual desktops that a user would name, minimised ones too, the last used
/// first. Panels, desktops, notifications and what wants to be in no task bar are not among them.
/// Costs a few round trips for all windows together.
std::vector<OpenWindow> openWindows(X11Connection& connection,
    const X11RunningApplications& applications, const RecentWindows& recent);

} // namespace brindlex
