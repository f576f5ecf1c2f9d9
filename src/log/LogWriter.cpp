#include "log/LogWriter.h"

#include "log/LogFile.h"
#include "platform/AppGroupContainer.h"
#include "platform/BackgroundQueue.h"
#include "platform/Clock.h"
#include "platform/SystemLog.h"

#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace brindlex {
namespace {

SystemLogType systemLogType(LogLevel level)
{
    switch (level) {
    case LogLevel::info:
        return SystemLogType::info;
    case LogLevel::warn:
    case LogLevel::error:
        return SystemLogType::error;
    case LogLevel::notice:
    case LogLevel::raw:
        break;
    }
    return SystemLogType::standard;
}

} // namespace

LogWriter::LogWriter(
    BackgroundQueue& queue, AppGroupContainer& container, SystemLog& systemLog, const Clock& clock)
    : queue_(queue), container_(container), systemLog_(systemLog), clock_(clock)
{
}

void LogWriter::write(const LogCall& call)
{
    if (call.level == LogLevel::raw)
        return;
    bool isFirst = false;
    {
        const std::lock_guard guard(mutex_);
        // The time is taken inside the lock, so that the lines of a file are in its order.
        backlog_.append(clock_.now(), call);
        isFirst = !std::exchange(isScheduled_, true);
    }
    if (isFirst)
        schedule();
}

void LogWriter::prune(Date now)
{
    queue_.post([self = shared_from_this(), now] { self->pruneFolder(now); });
}

std::optional<std::filesystem::path> LogWriter::fileURL(Log::Subsystem subsystem)
{
    auto folder = logsFolder();
    if (!folder)
        return {};
    return *folder / std::string(rawValue(subsystem)).append(".log");
}

void LogWriter::drain()
{
    // Another thread may have made the first line of the backlog without having come to post.
    schedule();
    queue_.drain();
}

void LogWriter::schedule()
{
    queue_.post([self = shared_from_this()] { self->writeBacklog(); });
}

void LogWriter::writeBacklog()
{
    auto chunks = takeBacklog();
    for (const auto& chunk : chunks)
        writeToFiles(chunk);
    for (const auto& chunk : chunks)
        writeToSystemLog(chunk);
    const std::lock_guard guard(mutex_);
    backlog_.giveBack(chunks);
}

std::vector<LogChunk> LogWriter::takeBacklog()
{
    const std::lock_guard guard(mutex_);
    isScheduled_ = false;
    return backlog_.take(clock_.now());
}

void LogWriter::writeToFiles(const LogChunk& chunk)
{
    std::vector<std::string_view> lines;
    for (auto line = chunk.lines.begin(); line != chunk.lines.end();) {
        const auto subsystem = line->subsystem;
        lines.clear();
        for (; line != chunk.lines.end() && line->subsystem == subsystem; ++line)
            lines.push_back(chunk.wholeLine(*line));
        const auto file = fileURL(subsystem);
        if (!file)
            continue;
        pruneFolder(clock_.now());
        appendToLogFile(*file, lines);
    }
}

void LogWriter::writeToSystemLog(const LogChunk& chunk)
{
    std::string subsystem;
    std::string category;
    std::string message;
    for (const auto& line : chunk.lines) {
        subsystem = rawValue(line.subsystem);
        category = chunk.category(line);
        message = chunk.message(line);
        systemLog_.write(systemLogType(line.level), subsystem, category, message);
    }
}

void LogWriter::pruneFolder(Date now)
{
    pruning_.prune([this] { return logsFolder(); }, now);
}

std::optional<std::filesystem::path> LogWriter::logsFolder()
{
    auto container = container_.appGroupContainerURL();
    if (!container)
        return {};
    auto folder = *container / "Logs";
    std::error_code ignored;
    std::filesystem::create_directory(folder, ignored);
    return folder;
}

} // namespace brindlex
