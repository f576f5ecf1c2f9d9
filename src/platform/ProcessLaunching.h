#pragma once

#include "foundation/Result.h"

#include <filesystem>
#include <string>
#include <vector>

namespace brindlex {

/// Starts other programs. Main thread only.
class ProcessLaunching {
public:
    virtual ~ProcessLaunching() = default;

    /// Starts the executable with these arguments and the program's own standard streams, and
    /// returns without waiting for it, or says in the system's words why it cannot be started. The
    /// process outlives the program and leaves nothing behind when it ends.
    virtual Result<Done, std::string> launch(
        const std::filesystem::path& executable, const std::vector<std::string>& arguments)
        = 0;
};

} // namespace brindlex
