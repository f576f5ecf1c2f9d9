#pragma once

#include "log/Log.h"
#include "platform/simulated/SimulatedJournal.h"

#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// Records log calls while it lives, as lines "WARN [input-method] message", and then puts back
/// what was installed before it. Calls are recorded from any thread, and also entered in the
/// journal, if one is given: "log <line>" and "prune".
class RecordedLog {
public:
    explicit RecordedLog(SimulatedJournal* journal = nullptr);
    ~RecordedLog();
    RecordedLog(const RecordedLog&) = delete;
    RecordedLog& operator=(const RecordedLog&) = delete;

    /// What was logged so far, in order.
    std::vector<std::string> lines() const;

    /// The same, which begins afresh.
    std::vector<std::string> takeLines();

    /// The dates of the requests to prune, in order.
    std::vector<Date> prunes() const;

    /// Lets `Log::fileURL` return files in this folder; without it there is no container.
    void setFolder(const std::filesystem::path& folder);

private:
    class Recorder;
    std::shared_ptr<Recorder> recorder_;
    std::shared_ptr<LogSink> before_;
};

} // namespace brindlex
