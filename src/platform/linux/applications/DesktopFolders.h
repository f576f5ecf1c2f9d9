#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace brindlex {

/// The folders with applications' data, the user's own first, as the environment names them (XDG
/// Base Directory Specification). Relative ones are ignored.
std::vector<std::filesystem::path> dataFolders();

/// The folders with settings, in the same way.
std::vector<std::filesystem::path> configFolders();

/// The user's languages in the forms in which a desktop entry marks them, best first:
/// "sr_YU@Latn", "sr_YU", "sr@Latn", "sr". As the environment names them.
std::vector<std::string> entryLanguages();

/// The forms for values of LANGUAGE and of the locale for messages.
std::vector<std::string> entryLanguages(const std::string& language, const std::string& locale);

} // namespace brindlex
