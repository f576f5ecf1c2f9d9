#pragma once

#include <filesystem>
#include <optional>

namespace brindlex {

/// The folders that the system keeps for the user. Callable from any thread.
class UserFolders {
public:
    virtual ~UserFolders() = default;

    virtual std::filesystem::path home() const = 0;

    /// Where programs keep what they store for the user; it may not exist yet.
    virtual std::filesystem::path dataHome() const = 0;

    /// Where the user wants downloads to go; nothing when the system has no such folder.
    virtual std::optional<std::filesystem::path> downloads() const = 0;
};

} // namespace brindlex
