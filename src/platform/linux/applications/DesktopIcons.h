#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The file of an application's own icon: the path itself, or for a name the largest picture in the
/// theme "hicolor" that every application brings (Icon Theme Specification), else in "pixmaps".
/// Nothing when there is no such file.
std::optional<std::filesystem::path> iconFile(
    const std::string& icon, const std::vector<std::filesystem::path>& dataFolders);

/// The file of an icon of that name in any theme, as a desktop with that theme would show it; for
/// an application that brings no icon of its own. Nothing when no theme has it.
std::optional<std::filesystem::path> themeIconFile(
    const std::string& icon, const std::vector<std::filesystem::path>& dataFolders);

} // namespace brindlex
