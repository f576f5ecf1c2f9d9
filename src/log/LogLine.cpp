#include "log/LogLine.h"

#include "foundation/Text.h"

#include <charconv>

namespace brindlex {
namespace {

constexpr std::size_t levelWidth = 6;

void appendWellFormed(std::string& text, std::string_view part)
{
    if (isWellFormed(part))
        text.append(part);
    else
        text.append(wellFormed(part));
}

std::string_view stem(std::string_view file)
{
    file.remove_prefix(file.find_last_of('/') + 1);
    return file.substr(0, file.find_last_of('.'));
}

void appendNumber(std::string& text, int number)
{
    char digits[16];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    text.append(digits, end);
}

} // namespace

LogLineParts appendLogLine(std::string& text, Date now, const LogCall& call)
{
    LogLineParts parts;
    parts.begin = text.size();
    const auto level = rawValue(call.level);
    text.append(iso8601(now)).append(" ").append(level);
    text.append(levelWidth - level.size(), ' ').append(" [");
    parts.categoryBegin = text.size();
    appendWellFormed(text, call.category);
    parts.categoryEnd = text.size();
    text.append("] Brindlex/").append(stem(call.site.file)).append(":");
    appendNumber(text, call.site.line);
    text.append(" — ");
    parts.messageBegin = text.size();
    appendWellFormed(text, call.message);
    parts.messageEnd = text.size();
    text.append("\n");
    return parts;
}

} // namespace brindlex
