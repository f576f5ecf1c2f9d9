#pragma once

#include "log/LogWriter.h"
#include "platform/AppGroupContainer.h"
#include "platform/Clock.h"
#include "platform/linux/system/XdgUserFolders.h"

namespace brindlex {

/// Runs the program on the desktop that `DISPLAY` names, until it is asked to end: by a signal, by
/// the end of the session, or because another instance runs, which the standard error output says.
/// Returns the exit status of the process; does not return when the X server goes away, but ends
/// the process with status 1 and the log complete.
///
/// `isSilentLaunch` is whether the desktop started the program at login, so that no window is to
/// come to the front.
int runOnDesktop(char* programName, bool isSilentLaunch, Clock& clock, XdgUserFolders& userFolders,
    AppGroupContainer& container, LogWriter& log);

} // namespace brindlex
