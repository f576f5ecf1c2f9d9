#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace brindlex {

/// The processes that were started with exactly this variable in their environment.
std::vector<pid_t> processesWithVariable(const std::string& name, const std::string& value);

/// The processes that this one, or another one, has started itself.
std::vector<pid_t> children();
std::vector<pid_t> childrenOf(pid_t process);

/// The file that the process runs, without links; empty when it has ended.
std::filesystem::path fileOf(pid_t process);

/// How often the threads of the process have gone to sleep; nothing while one of them is awake.
std::optional<long> timesAsleep(pid_t process);

/// Whether the first thread of a program with windows waits for the X server to reply: it watches
/// that one descriptor then, and more as long as it waits for events.
bool waitsForReply(pid_t process);

/// Whether the process has a handler for the signal.
bool catches(pid_t process, int signal);

} // namespace brindlex
