#include "platform/linux/applications/DesktopEntryText.h"

#include "foundation/Text.h"
#include "platform/linux/files/KeyFileLines.h"

#include <utility>

namespace brindlex {
namespace {

constexpr std::string_view entryGroup = "Desktop Entry";
constexpr std::string_view escapeNames = "sntr";
constexpr std::string_view escapeMeanings = " \n\t\r";

std::string unescaped(std::string_view value)
{
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value[at] != '\\' || at + 1 == value.size()) {
            text += value[at];
            continue;
        }
        const char escaped = value[++at];
        const auto name = escapeNames.find(escaped);
        text += name == escapeNames.npos ? escaped : escapeMeanings[name];
    }
    return text;
}

/// Blanks are escaped at the ends only, where they would be lost.
std::string escaped(std::string_view value)
{
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const bool isInside = at > 0 && at + 1 < value.size();
        const auto meaning = escapeMeanings.find(value[at]);
        if (value[at] == '\\')
            text += "\\\\";
        else if (meaning == escapeMeanings.npos || (value[at] == ' ' && isInside))
            text += value[at];
        else
            (text += '\\') += escapeNames[meaning];
    }
    return text;
}

bool hasToBeQuoted(std::string_view word)
{
    return word.empty() || word.find_first_of(" \t\n\"'\\><~|&;$*?#()`") != word.npos;
}

} // namespace

DesktopEntryKeys::DesktopEntryKeys(std::string_view text)
{
    KeyFileLines lines(text, entryGroup);
    while (const auto line = lines.next()) {
        hasGroup_ = hasGroup_ || line->isHeader;
        if (!line->key.empty())
            keys_.emplace(line->key, line->value);
    }
}

std::string DesktopEntryKeys::value(std::string_view key) const
{
    const auto found = keys_.find(key);
    return found == keys_.end() ? std::string() : wellFormed(unescaped(found->second));
}

std::vector<std::string> DesktopEntryKeys::list(std::string_view key) const
{
    std::vector<std::string> values;
    for (auto& part : split(value(key), ';'))
        if (!part.empty())
            values.push_back(std::move(part));
    return values;
}

std::string withDesktopEntryKey(
    std::string_view text, std::string_view key, const std::optional<std::string>& value)
{
    const bool isThere = DesktopEntryKeys(text).contains(key);
    auto missing = value ? std::string(key) + "=" + escaped(*value) + "\n" : std::string();
    std::string result;
    KeyFileLines lines(text, entryGroup);
    while (const auto line = lines.next()) {
        const bool isKey = !line->key.empty() && line->key == key;
        if (isKey)
            result += std::exchange(missing, {});
        else
            result += line->whole;
        if (line->isHeader && !isThere)
            result += (line->whole.ends_with('\n') ? "" : "\n") + std::exchange(missing, {});
    }
    return result;
}

std::vector<std::string> execWords(std::string_view exec)
{
    std::vector<std::string> result;
    std::string word;
    bool isQuoted = false;
    bool hasWord = false;
    for (std::size_t at = 0; at < exec.size(); ++at) {
        const char character = exec[at];
        if (character == '"') {
            isQuoted = !isQuoted;
            hasWord = true;
        } else if (character == '\\' && isQuoted && at + 1 < exec.size()) {
            word += exec[++at];
        } else if ((character == ' ' || character == '\t') && !isQuoted) {
            if (hasWord)
                result.push_back(std::exchange(word, {}));
            hasWord = false;
        } else {
            word += character;
            hasWord = true;
        }
    }
    if (hasWord)
        result.push_back(word);
    return result;
}

std::string quotedForExec(std::string_view word)
{
    constexpr std::string_view special = "\"`$\\";
    const bool isQuoted = hasToBeQuoted(word);
    std::string text;
    for (const char character : word) {
        if (isQuoted && special.find(character) != special.npos)
            text += '\\';
        // A single one begins a field code.
        text += character == '%' ? "%%" : std::string(1, character);
    }
    return isQuoted ? "\"" + text + "\"" : text;
}

} // namespace brindlex
