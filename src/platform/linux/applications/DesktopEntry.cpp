#include "platform/linux/applications/DesktopEntry.h"

#include "foundation/FileReading.h"
#include "foundation/Text.h"

#include <algorithm>
#include <map>
#include <utility>

namespace brindlex {
namespace {

constexpr std::size_t sizeLimit = 1024 * 1024;

/// ASCII only: what a line of the format is built of.
std::string_view stripped(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\f\v";
    const auto begin = text.find_first_not_of(blanks);
    if (begin == text.npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::string unescaped(std::string_view value)
{
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value[at] != '\\' || at + 1 == value.size()) {
            text += value[at];
            continue;
        }
        const char escaped = value[++at];
        constexpr std::string_view names = "sntr";
        constexpr std::string_view meanings = " \n\t\r";
        const auto name = names.find(escaped);
        text += name == names.npos ? escaped : meanings[name];
    }
    return text;
}

using Keys = std::map<std::string_view, std::string_view>;

/// The keys of the group "Desktop Entry"; of a key that is there twice, the first.
Keys keysOf(std::string_view text)
{
    Keys keys;
    bool isInside = false;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto line = stripped(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        if (line.starts_with('[')) {
            if (isInside)
                break;
            isInside = line == "[Desktop Entry]";
        } else if (const auto equals = line.find('=');
                   isInside && equals != line.npos && !line.starts_with('#')) {
            keys.emplace(stripped(line.substr(0, equals)), stripped(line.substr(equals + 1)));
        }
    }
    return keys;
}

std::string valueOf(const Keys& keys, std::string_view key)
{
    const auto found = keys.find(key);
    return found == keys.end() ? std::string() : wellFormed(unescaped(found->second));
}

std::string localized(
    const Keys& keys, const std::string& key, const std::vector<std::string>& languages)
{
    for (const auto& language : languages) {
        auto value = valueOf(keys, key + "[" + language + "]");
        if (!value.empty())
            return value;
    }
    return valueOf(keys, key);
}

/// The words of a command line in the quoting of the key Exec.
std::vector<std::string> words(std::string_view exec)
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

std::string baseName(const std::string& path) { return path.substr(path.rfind('/') + 1); }

} // namespace

std::optional<DesktopEntry> parseDesktopEntry(
    std::string_view text, const std::vector<std::string>& languages)
{
    const auto keys = keysOf(text);
    if (valueOf(keys, "Type") != "Application" || valueOf(keys, "Hidden") == "true")
        return {};
    return DesktopEntry{
        .name = valueOf(keys, "Name"),
        .localizedName = localized(keys, "Name", languages),
        .icon = localized(keys, "Icon", languages),
        .windowClass = valueOf(keys, "StartupWMClass"),
        .program = programOf(valueOf(keys, "Exec")),
        .isInMenus = valueOf(keys, "NoDisplay") != "true",
        .runsInTerminal = valueOf(keys, "Terminal") == "true",
    };
}

std::optional<DesktopEntry> readDesktopEntry(
    const std::filesystem::path& file, const std::vector<std::string>& languages)
{
    const auto text = readFile(file, sizeLimit);
    if (!text || !*text)
        return {};
    auto entry = parseDesktopEntry(**text, languages);
    if (entry)
        entry->path = file;
    return entry;
}

std::string programOf(std::string_view exec)
{
    const auto parts = words(exec);
    auto part = parts.begin();
    const auto isOption = [](const std::string& word) { return word.starts_with('-'); };
    if (part != parts.end() && baseName(*part) == "env")
        part = std::find_if(part + 1, parts.end(), [&](const std::string& word) {
            return !isOption(word) && word.find('=') == word.npos;
        });
    if (part == parts.end())
        return {};
    if (baseName(*part) != "flatpak")
        return baseName(*part);
    constexpr std::string_view command = "--command=";
    const auto named = std::find_if(
        part, parts.end(), [&](const std::string& word) { return word.starts_with(command); });
    return named == parts.end() ? std::string() : baseName(named->substr(command.size()));
}

} // namespace brindlex
