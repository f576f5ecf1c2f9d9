#include "app/LogWriter.h"

#include "app/LogFile.h"
#include "platform/AppGroupContainer.h"
#include "platform/BackgroundQueue.h"
#include "platform/Clock.h"
#include "platform/SystemLog.h"

#include <system_error>
#include <utility>

namespace brindlex {
namespace {

/// What is kept of a backlog's memory for the next one.
constexpr std::size_t keptCapacity = 1024 * 1024;

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
        const bool isFull = backlog_.text.size() + call.message.size() > backlogLimit;
        if (isFull && !backlog_.lines.empty())
            ++backlog_.dropped;
        else
            append(backlog_, call);
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

/// The time is taken here, inside the lock, so that the lines of a file are in its order.
void LogWriter::append(Backlog& backlog, const LogCall& call)
{
    const auto parts = appendLogLine(backlog.text, clock_.now(), call);
    backlog.lines.push_back({call.subsystem, call.level, parts});
}

void LogWriter::schedule()
{
    queue_.post([self = shared_from_this()] { self->writeBacklog(); });
}

void LogWriter::writeBacklog()
{
    auto backlog = takeBacklog();
    writeToFiles(backlog);
    writeToSystemLog(backlog);
    giveBack(std::move(backlog));
}

LogWriter::Backlog LogWriter::takeBacklog()
{
    const std::lock_guard guard(mutex_);
    auto backlog = std::exchange(backlog_, std::exchange(spare_, {}));
    isScheduled_ = false;
    if (backlog.dropped > 0)
        append(backlog,
            {LogLevel::warn, Log::Subsystem::app, logCategory::lifecycle,
                std::to_string(backlog.dropped)
                    + " log lines were dropped: they came faster than they could be written",
                CallSite::here()});
    return backlog;
}

void LogWriter::giveBack(Backlog backlog)
{
    if (backlog.text.capacity() > keptCapacity)
        return;
    backlog.text.clear();
    backlog.lines.clear();
    backlog.dropped = 0;
    const std::lock_guard guard(mutex_);
    spare_ = std::move(backlog);
}

void LogWriter::writeToFiles(const Backlog& backlog)
{
    std::vector<std::string_view> lines;
    for (std::size_t next = 0; next < backlog.lines.size();) {
        const auto subsystem = backlog.lines[next].subsystem;
        lines.clear();
        for (; next < backlog.lines.size() && backlog.lines[next].subsystem == subsystem; ++next) {
            const auto& parts = backlog.lines[next].parts;
            lines.push_back(std::string_view(backlog.text)
                                .substr(parts.begin, parts.messageEnd + 1 - parts.begin));
        }
        const auto file = fileURL(subsystem);
        if (!file)
            continue;
        pruneFolder(clock_.now());
        appendToLogFile(*file, lines);
    }
}

void LogWriter::writeToSystemLog(const Backlog& backlog)
{
    for (const auto& [subsystem, level, parts] : backlog.lines)
        systemLog_.write(systemLogType(level), std::string(rawValue(subsystem)),
            backlog.text.substr(parts.categoryBegin, parts.categoryEnd - parts.categoryBegin),
            backlog.text.substr(parts.messageBegin, parts.messageEnd - parts.messageBegin));
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
