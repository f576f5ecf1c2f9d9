#pragma once

#include <sys/types.h>

namespace brindlex {

/// What a process holds in memory, in MB (1024 KiB each).
struct ProcessMemory {
    double resident = 0;
    /// Its share of what several processes hold.
    double proportional = 0;
    /// What would be free without it.
    double unique = 0;
};

ProcessMemory memoryOf(pid_t process);

/// How often all threads of the process have gone to sleep so far.
long sleepsOf(pid_t process);

} // namespace brindlex
