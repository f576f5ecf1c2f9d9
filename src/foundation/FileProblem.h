#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace brindlex {

/// What went wrong with a file, in the system's words.
struct FileProblem {
    std::filesystem::path path{};
    std::string reason{};

    /// By the system's number for it.
    static FileProblem ofSystem(const std::filesystem::path& path, int error)
    {
        return {path, std::generic_category().message(error)};
    }
    static FileProblem notARegularFile(const std::filesystem::path& path)
    {
        return {path, "Is not a regular file"};
    }

    bool operator==(const FileProblem&) const = default;
};

} // namespace brindlex
