#include "log/LogPruning.h"

#include <chrono>
#include <system_error>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

std::optional<Date> modificationDate(const fs::path& file)
{
    std::error_code error;
    const auto time = fs::last_write_time(file, error);
    if (error)
        return {};
    const auto sinceEpoch = std::chrono::file_clock::to_sys(time).time_since_epoch();
    return Date::fromUnixTime(std::chrono::duration<Seconds>(sinceEpoch).count());
}

void removeFilesOlderThan(Date cutOff, const fs::path& folder)
{
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const auto& file = entry->path();
        if (!isLogFileName(file.filename().string()))
            continue;
        const auto date = modificationDate(file);
        std::error_code ignored;
        if (date && *date < cutOff)
            fs::remove(file, ignored);
    }
}

} // namespace

bool isLogFileName(std::string_view name)
{
    constexpr std::string_view suffix = ".log";
    if (name.ends_with(suffix))
        return true;
    const auto numberBegin = name.find_last_not_of("0123456789") + 1;
    const auto beforeNumber = name.substr(0, numberBegin);
    return numberBegin < name.size() && beforeNumber.ends_with(".log.");
}

void LogPruning::prune(const Folder& folder, Date now)
{
    if (lastPruneDate_ && now - *lastPruneDate_ < logPruningInterval)
        return;
    if (const auto found = folder())
        removeFilesOlderThan(now - logFileLifetime, *found);
    lastPruneDate_ = now;
}

} // namespace brindlex
