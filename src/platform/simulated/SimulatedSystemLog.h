#pragma once

#include "platform/SystemLog.h"

#include <mutex>
#include <utility>
#include <vector>

namespace brindlex {

/// A system log that keeps what it is given.
class SimulatedSystemLog : public SystemLog {
public:
    struct Entry {
        SystemLogType type = SystemLogType::info;
        std::string subsystem{};
        std::string category{};
        std::string message{};

        bool operator==(const Entry&) const = default;
    };

    void write(SystemLogType type, const std::string& subsystem, const std::string& category,
        const std::string& message) override
    {
        const std::lock_guard guard(mutex_);
        entries_.push_back({type, subsystem, category, message});
    }

    /// What was written so far, in order.
    std::vector<Entry> entries() const
    {
        const std::lock_guard guard(mutex_);
        return entries_;
    }

private:
    mutable std::mutex mutex_;
    std::vector<Entry> entries_;
};

} // namespace brindlex
