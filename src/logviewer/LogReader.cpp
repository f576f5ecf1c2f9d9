#include "logviewer/LogReader.h"

#include <algorithm>
#include <system_error>
#include <type_traits>
#include <utility>

namespace brindlex {
namespace {

constexpr Seconds pollInterval = 1.0;

/// Nothing when there is no file; 0 when its size is unknown.
std::optional<std::uint64_t> sizeOf(const std::filesystem::path& file)
{
    std::error_code problem;
    const auto size = std::filesystem::file_size(file, problem);
    if (problem == std::errc::no_such_file_or_directory)
        return {};
    return problem ? 0 : size;
}

/// Notifies of nothing that was so before.
template <typename Value>
void publish(Observable<Value>& observable, std::type_identity_t<Value> value)
{
    if (observable.value() != value)
        observable.set(std::move(value));
}

} // namespace

LogReader::LogReader(
    Log::Subsystem subsystem, MainThread& mainThread, const StringCatalogue& strings)
    : subsystem_(subsystem), mainThread_(mainThread), strings_(strings)
{
}

void LogReader::start()
{
    if (pollTimer_.isActive())
        return;
    pollTimer_ = mainThread_.every(pollInterval, [this] { poll(); });
    reload();
}

void LogReader::reload()
{
    forget();
    file_ = Log::fileURL(subsystem_);
    if (!file_) {
        publish(loadError_, strings_.text<"logs.error.appGroupUnavailable">());
        return;
    }
    publish(loadError_, {});
    if (const auto size = sizeOf(*file_))
        read(*size);
}

void LogReader::clear()
{
    std::error_code problem;
    if (const auto file = Log::fileURL(subsystem_))
        std::filesystem::resize_file(*file, 0, problem);
    reload();
    if (problem)
        publish(loadError_, strings_.text<"logs.clearFailedFormat">(problem.message()));
}

void LogReader::poll()
{
    if (!file_) {
        reload();
        return;
    }
    const auto size = sizeOf(*file_);
    if (!size) {
        forget();
        return;
    }
    const bool isShorter = *size < lastOffset_;
    if (isShorter)
        forget();
    if (isShorter || (*size > lastOffset_ && *size != lastSize_))
        read(*size);
    publish(fileByteSize_, *size);
}

void LogReader::forget()
{
    lastOffset_ = 0;
    lastSize_ = 0;
    lineCounter_ = 0;
    publish(entries_, {});
    publish(fileByteSize_, {});
}

void LogReader::read(std::uint64_t size)
{
    const auto tail = readLogTail(*file_, lastOffset_, logEntryLimit);
    if (!tail) {
        publish(loadError_, strings_.text<"logs.readFailedFormat">(tail.error().reason));
        return;
    }
    publish(loadError_, {});
    publish(fileByteSize_, size);
    lastOffset_ = tail->end;
    lastSize_ = size;
    append(*tail);
}

void LogReader::append(const LogTail& tail)
{
    if (tail.lineCount == 0)
        return;
    lineCounter_ += tail.lineCount;
    auto number = lineCounter_ - tail.lines.size();
    const auto& known = entries_.value();
    const auto kept = std::min(known.size(), logEntryLimit - tail.lines.size());
    std::vector<LogEntry> entries(known.end() - static_cast<std::ptrdiff_t>(kept), known.end());
    entries.reserve(kept + tail.lines.size());
    const auto name = std::string(rawValue(subsystem_)) + "#";
    for (const auto& line : tail.lines)
        entries.push_back(parseLogLine(line, name + std::to_string(++number)));
    entries_.set(std::move(entries));
}

} // namespace brindlex
