#pragma once

#include "catalogue/StringCatalogue.h"
#include "foundation/Observable.h"
#include "log/Log.h"
#include "logviewer/LogEntry.h"
#include "logviewer/LogTail.h"
#include "platform/MainThread.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// How many entries of a log are kept: the newest.
inline constexpr std::size_t logEntryLimit = 5'000;

/// Follows the log file of one subsystem and takes its lines apart.
///
/// What is there is read at `start`; from then on the size of the file is looked at once a second,
/// and what was added is read. A file that has become shorter was rotated or cleared and is read
/// from its beginning. A failure is in `loadError`, in words for the user, until the next read that
/// succeeds, and is never logged. Main thread only.
class LogReader {
public:
    LogReader(Log::Subsystem subsystem, MainThread& mainThread, const StringCatalogue& strings);

    Log::Subsystem subsystem() const { return subsystem_; }
    /// In the order of the file.
    const Observable<std::vector<LogEntry>>& entries() const { return entries_; }
    /// The size of the file in bytes.
    const Observable<std::uint64_t>& fileByteSize() const { return fileByteSize_; }
    const Observable<std::optional<std::string>>& loadError() const { return loadError_; }

    void start();
    void stop() { pollTimer_.reset(); }

    /// Reads the file from its beginning.
    void reload();

    /// Empties the current file and reads it again.
    void clear();

    /// Reads what was added since the last time; the timer's work.
    void poll();

private:
    void forget();
    void read(std::uint64_t size);
    void append(const LogTail& tail);

    const Log::Subsystem subsystem_;
    MainThread& mainThread_;
    const StringCatalogue& strings_;
    Observable<std::vector<LogEntry>> entries_{{}};
    Observable<std::uint64_t> fileByteSize_{0};
    Observable<std::optional<std::string>> loadError_{std::nullopt};
    Subscription pollTimer_;
    /// As it was found last; nothing without a container.
    std::optional<std::filesystem::path> file_;
    std::uint64_t lastOffset_ = 0;
    /// How far the file reached when it was read last; a last line without its newline lies
    /// between.
    std::uint64_t lastSize_ = 0;
    std::size_t lineCounter_ = 0;
};

} // namespace brindlex
