#pragma once

#include "support/screen/XConnection.h"

#include <sys/types.h>

namespace brindlex {

/// Processor time that all threads of the process have used so far; 0 when there is no such
/// process.
double secondsUsedBy(pid_t process);

/// The process of the X server, which must run on this computer.
pid_t processOfServer(const XConnection& server);

} // namespace brindlex
