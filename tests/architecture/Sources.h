#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace brindlex {

/// One `#include` line of the program's own sources.
struct Include {
    /// Both relative to the folder of the sources.
    std::filesystem::path file{};
    std::string target{};
    int line = 0;
    /// Whether it is written in quotes, as the program's own headers are.
    bool isOwn = false;
};

/// All headers and sources below the folder, relative to it.
std::vector<std::filesystem::path> sourceFiles(const std::filesystem::path& root);

/// All includes of these files.
std::vector<Include> includesBelow(const std::filesystem::path& root);

} // namespace brindlex
