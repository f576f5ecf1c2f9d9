#include "logviewer/LogEntry.h"

#include <utility>

namespace brindlex {
namespace {

constexpr std::string_view messageSeparator = " — ";

/// What stands before the separator, which is taken off the text together with it; nothing where
/// there is no separator.
std::optional<std::string_view> takeUpTo(std::string_view& text, std::string_view separator)
{
    const auto end = text.find(separator);
    if (end == std::string_view::npos)
        return {};
    const auto found = text.substr(0, end);
    text.remove_prefix(end + separator.size());
    return found;
}

void skipSpaces(std::string_view& text)
{
    const auto begin = text.find_first_not_of(' ');
    text.remove_prefix(begin == std::string_view::npos ? text.size() : begin);
}

LogLevel levelOf(std::string_view name)
{
    for (const auto level : {LogLevel::info, LogLevel::notice, LogLevel::warn, LogLevel::error})
        if (rawValue(level) == name)
            return level;
    return LogLevel::raw;
}

/// Nothing for a line that is in another form.
std::optional<LogEntry> parseWrittenLine(std::string_view line)
{
    auto rest = line;
    const auto timestamp = takeUpTo(rest, " ");
    skipSpaces(rest);
    const auto level = takeUpTo(rest, " ");
    skipSpaces(rest);
    if (!timestamp || !level || !rest.starts_with('['))
        return {};
    rest.remove_prefix(1);
    const auto category = takeUpTo(rest, "]");
    skipSpaces(rest);
    const auto location = takeUpTo(rest, messageSeparator);
    if (!category || !location)
        return {};
    return LogEntry{{}, dateFromISO8601(*timestamp), std::string(*timestamp), levelOf(*level),
        std::string(*category), std::string(*location), std::string(rest), std::string(line)};
}

} // namespace

LogEntry parseLogLine(std::string_view line, std::string id)
{
    if (line.ends_with('\n'))
        line.remove_suffix(1);
    auto entry = parseWrittenLine(line);
    if (!entry)
        entry = LogEntry{.message = std::string(line), .raw = std::string(line)};
    entry->id = std::move(id);
    return *std::move(entry);
}

} // namespace brindlex
