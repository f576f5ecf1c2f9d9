#include "log/Log.h"

#include <mutex>
#include <utility>

namespace brindlex {
namespace {

/// The sink and its lock. Never destroyed: threads may log while the process ends.
struct Installed {
    std::mutex mutex;
    std::shared_ptr<LogSink> sink;
};

Installed& installed()
{
    static auto* const value = new Installed;
    return *value;
}

/// The sink, kept alive by whoever uses it.
std::shared_ptr<LogSink> installedSink()
{
    const std::lock_guard guard(installed().mutex);
    return installed().sink;
}

void write(const LogCall& call)
{
    if (const auto sink = installedSink())
        sink->write(call);
}

} // namespace

std::string_view rawValue(LogLevel level)
{
    switch (level) {
    case LogLevel::info:
        return "INFO";
    case LogLevel::notice:
        return "NOTICE";
    case LogLevel::warn:
        return "WARN";
    case LogLevel::error:
        return "ERROR";
    case LogLevel::raw:
        break;
    }
    return "RAW";
}

std::string_view rawValue(Log::Subsystem subsystem)
{
    switch (subsystem) {
    case Log::Subsystem::app:
        return "com.brindlex.Brindlex.app";
    case Log::Subsystem::finder:
        return "com.brindlex.Brindlex.finder";
    case Log::Subsystem::voice:
        break;
    }
    return "com.brindlex.Brindlex.voice";
}

void Log::info(
    std::string_view message, std::string_view category, CallSite site, Subsystem subsystem)
{
    brindlex::write({LogLevel::info, subsystem, category, message, site});
}

void Log::notice(
    std::string_view message, std::string_view category, CallSite site, Subsystem subsystem)
{
    brindlex::write({LogLevel::notice, subsystem, category, message, site});
}

void Log::warn(
    std::string_view message, std::string_view category, CallSite site, Subsystem subsystem)
{
    brindlex::write({LogLevel::warn, subsystem, category, message, site});
}

void Log::error(
    std::string_view message, std::string_view category, CallSite site, Subsystem subsystem)
{
    brindlex::write({LogLevel::error, subsystem, category, message, site});
}

void Log::prune(Date now)
{
    if (const auto sink = installedSink())
        sink->prune(now);
}

std::optional<std::filesystem::path> Log::fileURL(Subsystem subsystem)
{
    const auto sink = installedSink();
    if (!sink)
        return {};
    return sink->fileURL(subsystem);
}

std::shared_ptr<LogSink> Log::install(std::shared_ptr<LogSink> sink)
{
    const std::lock_guard guard(installed().mutex);
    return std::exchange(installed().sink, std::move(sink));
}

} // namespace brindlex
