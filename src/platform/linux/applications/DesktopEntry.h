#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What an application says of itself in its desktop entry (Desktop Entry Specification 1.5).
struct DesktopEntry {
    /// The desktop-file identifier without its suffix; empty until a folder gives it one.
    std::string identifier{};
    std::filesystem::path path{};
    std::string name{};
    /// The name in the first of the user's languages that the entry has, else `name`.
    std::string localizedName{};
    /// A path or the name of an icon of the theme.
    std::string icon{};
    /// StartupWMClass: what its windows call themselves.
    std::string windowClass{};
    /// The base name of the program that it starts, wrappers left out.
    std::string program{};
    bool isInMenus = true;
    bool runsInTerminal = false;

    bool operator==(const DesktopEntry&) const = default;
};

/// Reads the text of an entry of the type Application that is not hidden; nothing for any other.
/// A missing key leaves its field empty; bytes that are not UTF-8 become U+FFFD.
std::optional<DesktopEntry> parseDesktopEntry(
    std::string_view text, const std::vector<std::string>& languages);

/// Reads an entry from a file. A file that is not a plain file, that cannot be read or that is
/// larger than 1 MiB is none.
std::optional<DesktopEntry> readDesktopEntry(
    const std::filesystem::path& file, const std::vector<std::string>& languages);

/// The base name of the program in a value of the key Exec, behind `env` and `flatpak run`.
std::string programOf(std::string_view exec);

} // namespace brindlex
