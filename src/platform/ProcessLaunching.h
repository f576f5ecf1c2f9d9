#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace brindlex {

/// Starts other programs. Main thread only.
class ProcessLaunching {
public:
    virtual ~ProcessLaunching() = default;

    /// Called with the system's words for why a program could not be started.
    using Failed = std::function<void(const std::string& reason)>;

    /// Starts the executable with these arguments and the program's own standard streams. Returns
    /// at once: starting takes long on a busy computer, and input waits for the main thread. What
    /// cannot be started is reported on the main thread, maybe inside this call. The process
    /// outlives the program and leaves nothing behind when it ends.
    virtual void launch(const std::filesystem::path& executable,
        const std::vector<std::string>& arguments, Failed failed)
        = 0;
};

} // namespace brindlex
