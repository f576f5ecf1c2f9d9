#include "platform/linux/files/KeyFileLines.h"

namespace brindlex {
namespace {

/// ASCII only: what a line of the format is built of.
std::string_view stripped(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\f\v";
    const auto begin = text.find_first_not_of(blanks);
    if (begin == text.npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

} // namespace

std::optional<KeyFileLine> KeyFileLines::next()
{
    if (rest_.empty())
        return {};
    const auto end = rest_.find('\n');
    const auto size = end == rest_.npos ? rest_.size() : end + 1;
    KeyFileLine line{.whole = rest_.substr(0, size)};
    rest_.remove_prefix(size);
    classify(line, stripped(line.whole.substr(0, end == rest_.npos ? size : size - 1)));
    return line;
}

void KeyFileLines::classify(KeyFileLine& line, std::string_view content)
{
    const auto equals = content.find('=');
    if (content.starts_with('[')) {
        line.isHeader = !hasBeenInside_ && isHeader(content);
        isInside_ = line.isHeader;
        hasBeenInside_ = hasBeenInside_ || isInside_;
    } else if (isInside_ && equals != content.npos && !content.starts_with('#')) {
        line.key = stripped(content.substr(0, equals));
        line.value = stripped(content.substr(equals + 1));
    }
}

bool KeyFileLines::isHeader(std::string_view content) const
{
    return content.size() == group_.size() + 2 && content.ends_with(']')
        && content.substr(1, group_.size()) == group_;
}

std::optional<std::string_view> keyFileValue(
    std::string_view text, std::string_view group, std::string_view key)
{
    std::optional<std::string_view> value;
    KeyFileLines lines(text, group);
    while (const auto line = lines.next())
        if (!line->key.empty() && line->key == key)
            value = line->value;
    return value;
}

} // namespace brindlex
