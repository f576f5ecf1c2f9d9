#pragma once

#include "log/Log.h"

#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// Records log calls while it lives, as lines "WARN [input-method] message", and then puts back
/// what was installed before it. Calls are recorded from any thread.
class RecordedLog {
public:
    RecordedLog();
    ~RecordedLog();
    RecordedLog(const RecordedLog&) = delete;
    RecordedLog& operator=(const RecordedLog&) = delete;

    /// What was logged so far, in order.
    std::vector<std::string> lines() const;

    /// The same, which begins afresh.
    std::vector<std::string> takeLines();

    /// The dates that the log was told to prune at, in order.
    std::vector<Date> prunes() const;

    /// Lets `Log::fileURL` answer with files in this folder; without it there is no container.
    void setFolder(const std::filesystem::path& folder);

private:
    class Recorder;
    std::shared_ptr<Recorder> recorder_;
    std::shared_ptr<LogSink> before_;
};

} // namespace brindlex
