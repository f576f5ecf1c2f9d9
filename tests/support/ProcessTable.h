#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace brindlex {

/// The processes that were started with exactly this variable in their environment.
std::vector<pid_t> processesWithVariable(const std::string& name, const std::string& value);

} // namespace brindlex
