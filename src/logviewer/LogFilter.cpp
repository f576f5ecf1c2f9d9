#include "logviewer/LogFilter.h"

#include "foundation/Text.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

bool contains(const LogEntry& entry, std::string_view query)
{
    const std::array searched{&entry.message, &entry.category, &entry.location};
    return std::any_of(searched.begin(), searched.end(), [&](const std::string* text) {
        return lowercased(*text).find(query) != std::string::npos;
    });
}

} // namespace

std::vector<std::size_t> visibleEntries(
    const std::vector<LogEntry>& entries, const LogFilter& filter)
{
    const auto query = lowercased(trimmed(filter.query));
    std::vector<std::size_t> visible;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const auto& entry = entries[index];
        if (filter.levels.contains(entry.level) && (query.empty() || contains(entry, query)))
            visible.push_back(index);
    }
    return visible;
}

} // namespace brindlex
