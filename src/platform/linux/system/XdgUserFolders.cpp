#include "platform/linux/system/XdgUserFolders.h"

#include "foundation/FileReading.h"
#include "foundation/Text.h"

#include <array>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace brindlex {
namespace {

constexpr std::size_t largestUserDirs = 1'000'000;

/// The content of a text in double quotes in which "\" takes the meaning from what follows it.
std::optional<std::string> unquoted(std::string_view text)
{
    if (text.size() < 2 || text.front() != '"')
        return {};
    std::string content;
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (text[at] == '"')
            return content;
        if (text[at] == '\\' && at + 1 < text.size())
            ++at;
        content += text[at];
    }
    return {};
}

/// The path of an assignment's right side: absolute, or below the home folder.
std::optional<std::filesystem::path> folderFrom(
    std::string_view value, const std::filesystem::path& home)
{
    constexpr std::string_view homeVariable = "$HOME";
    const auto text = unquoted(value);
    if (!text || text->find('\0') != std::string::npos)
        return {};
    if (text->starts_with('/'))
        return std::filesystem::path(*text);
    if (*text == homeVariable)
        return home;
    if (text->starts_with("$HOME/"))
        return home / std::string_view(*text).substr(homeVariable.size() + 1);
    return {};
}

/// The folder without a separator at its end.
std::filesystem::path plain(const std::filesystem::path& folder)
{
    const auto normal = folder.lexically_normal();
    return normal.has_filename() ? normal : normal.parent_path();
}

std::optional<std::filesystem::path> absolutePath(const char* text)
{
    if (!text || text[0] != '/')
        return {};
    return std::filesystem::path(text);
}

/// The home folder of the user database, for a process without a usable HOME.
std::filesystem::path homeOfUser()
{
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 16'384> buffer{};
    ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found);
    return absolutePath(found ? found->pw_dir : nullptr).value_or("/");
}

} // namespace

std::optional<std::filesystem::path> userDirectory(
    std::string_view userDirs, std::string_view key, const std::filesystem::path& home)
{
    std::optional<std::filesystem::path> folder;
    for (const auto& line : split(userDirs, '\n')) {
        const auto equals = line.find('=');
        if (equals == std::string::npos || trimmed(line.substr(0, equals)) != key)
            continue;
        if (const auto named = folderFrom(trimmed(line.substr(equals + 1)), home))
            folder = plain(*named);
    }
    return folder && *folder != plain(home) ? folder : std::nullopt;
}

XdgUserFolders::XdgUserFolders()
    : XdgUserFolders([](const char* name) { return std::getenv(name); })
{
}

XdgUserFolders::XdgUserFolders(const Environment& environment)
{
    const auto home = absolutePath(environment("HOME"));
    home_ = home ? *home : homeOfUser();
    configHome_ = absolutePath(environment("XDG_CONFIG_HOME")).value_or(home_ / ".config");
    dataHome_ = absolutePath(environment("XDG_DATA_HOME")).value_or(home_ / ".local/share");
}

std::optional<std::filesystem::path> XdgUserFolders::downloads() const
{
    const auto userDirs = readFile(configHome_ / "user-dirs.dirs", largestUserDirs);
    if (!userDirs || !*userDirs)
        return {};
    return userDirectory(**userDirs, "XDG_DOWNLOAD_DIR", home_);
}

} // namespace brindlex
