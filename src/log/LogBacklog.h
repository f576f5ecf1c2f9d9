#pragma once

#include "log/Log.h"
#include "log/LogLine.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// Lines that stand behind each other in one text.
struct LogChunk {
    struct Line {
        Log::Subsystem subsystem = Log::Subsystem::app;
        LogLevel level = LogLevel::info;
        LogLineParts parts{};
    };

    std::string text{};
    std::vector<Line> lines{};

    void append(Date now, const LogCall& call);

    /// The line with its newline.
    std::string_view wholeLine(const Line& line) const;
    std::string_view category(const Line& line) const;
    std::string_view message(const Line& line) const;
};

/// The lines that wait to be written, in order, up to a bound. One thread at a time.
///
/// Memory comes in chunks, so that no append ever moves what waits, and a few of them are used over
/// and over.
class LogBacklog {
public:
    static constexpr std::size_t usualLimit = 32 * 1024 * 1024;

    /// So many bytes of lines wait at most; a single line may be larger.
    explicit LogBacklog(std::size_t limit = usualLimit) : limit_(limit) { }

    /// Appends the line of a call, or counts it as dropped where there is no room.
    void append(Date now, const LogCall& call);

    /// Takes all that waits out. Where lines were dropped it ends in a WARN line that says how
    /// many.
    std::vector<LogChunk> take(Date now);

    /// Takes of chunks that were taken out what is wanted for further use.
    void giveBack(std::vector<LogChunk>& chunks);

private:
    LogChunk& chunkWithRoomFor(std::size_t bytes);

    const std::size_t limit_;
    std::vector<LogChunk> chunks_;
    std::vector<LogChunk> spares_;
    std::size_t size_ = 0;
    std::size_t dropped_ = 0;
};

} // namespace brindlex
