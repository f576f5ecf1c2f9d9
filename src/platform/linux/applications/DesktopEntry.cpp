#include "platform/linux/applications/DesktopEntry.h"

#include "foundation/FileReading.h"
#include "platform/linux/applications/DesktopEntryText.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr std::size_t sizeLimit = 1024 * 1024;

std::string localized(
    const DesktopEntryKeys& keys, const std::string& key, const std::vector<std::string>& languages)
{
    for (const auto& language : languages) {
        auto value = keys.value(key + "[" + language + "]");
        if (!value.empty())
            return value;
    }
    return keys.value(key);
}

std::string baseName(const std::string& path) { return path.substr(path.rfind('/') + 1); }

} // namespace

std::optional<DesktopEntry> parseDesktopEntry(
    std::string_view text, const std::vector<std::string>& languages)
{
    const DesktopEntryKeys keys(text);
    if (keys.value("Type") != "Application" || keys.value("Hidden") == "true")
        return {};
    return DesktopEntry{
        .name = keys.value("Name"),
        .localizedName = localized(keys, "Name", languages),
        .icon = localized(keys, "Icon", languages),
        .windowClass = keys.value("StartupWMClass"),
        .program = programOf(keys.value("Exec")),
        .isInMenus = keys.value("NoDisplay") != "true",
        .runsInTerminal = keys.value("Terminal") == "true",
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
    const auto parts = execWords(exec);
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
