#pragma once

#include "log/Log.h"
#include "log/LogBacklog.h"
#include "log/LogPruning.h"

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace brindlex {

class AppGroupContainer;
class BackgroundQueue;
class Clock;
class SystemLog;

/// Writes log calls to the system log and to the files in "Logs" of the container.
///
/// A call builds its line where it is made, with the time of that moment, and hands it to the
/// queue, where all the rest happens: a call waits neither for a file nor for the system log. Lines
/// that wait together are written together. The lines of one process keep their order.
///
/// What waits is bounded: while a flood outruns the disk by `LogBacklog::usualLimit`, lines are
/// dropped, whatever their level, since making the caller wait could halt the main thread; one WARN
/// line says afterwards how many. Owned by a `shared_ptr`; work that waits in the queue keeps it
/// alive. All operations are callable from any thread.
class LogWriter : public LogSink, public std::enable_shared_from_this<LogWriter> {
public:
    /// The queue is for this writer alone and ends before the others.
    LogWriter(BackgroundQueue& queue, AppGroupContainer& container, SystemLog& systemLog,
        const Clock& clock);

    void write(const LogCall& call) override;

    /// Does so on the queue as well.
    void prune(Date now) override;

    std::optional<std::filesystem::path> fileURL(Log::Subsystem subsystem) override;

    /// Returns when every line of a call made before has been written: for the end of the process.
    void drain();

private:
    void schedule();
    void writeBacklog();
    std::vector<LogChunk> takeBacklog();
    void writeToFiles(const LogChunk& chunk);
    void writeToSystemLog(const LogChunk& chunk);
    void pruneFolder(Date now);
    std::optional<std::filesystem::path> logsFolder();

    BackgroundQueue& queue_;
    AppGroupContainer& container_;
    SystemLog& systemLog_;
    const Clock& clock_;

    std::mutex mutex_;
    LogBacklog backlog_;
    bool isScheduled_ = false;

    /// Touched on the queue only.
    LogPruning pruning_;
};

} // namespace brindlex
