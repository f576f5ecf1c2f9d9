#pragma once

#include "foundation/Result.h"

#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace brindlex {

/// Starts a program, the first of the command, in a session of its own, with no descriptor but the
/// standard streams and with the signals as a new process has them. It gets the environment of this
/// process with the variables put over it. Returns once the program runs, or the system's words for
/// why it does not. Somebody has to wait for the process.
Result<pid_t, std::string> startFresh(
    std::vector<std::string> command, const std::map<std::string, std::string>& variables = {});

} // namespace brindlex
