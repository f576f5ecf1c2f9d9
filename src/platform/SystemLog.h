#pragma once

#include <string>

namespace brindlex {

/// The importance of a line in the system's log.
enum class SystemLogType { info, standard, error };

/// The log that the operating system keeps for all programs.
class SystemLog {
public:
    virtual ~SystemLog() = default;

    /// Writes one message. Never fails and never reports; a system without a log drops it. Called
    /// from one thread at a time.
    virtual void write(SystemLogType type, const std::string& subsystem,
        const std::string& category, const std::string& message)
        = 0;
};

} // namespace brindlex
