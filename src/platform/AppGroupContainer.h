#pragma once

#include <filesystem>
#include <optional>

namespace brindlex {

/// The folder "group.com.brindlex.Brindlex" that the program shares with its file-manager
/// extension.
class AppGroupContainer {
public:
    virtual ~AppGroupContainer() = default;

    /// The folder, made if it is missing; nothing when it cannot be had or is not the user's own.
    /// Callable from any thread.
    virtual std::optional<std::filesystem::path> appGroupContainerURL() = 0;
};

} // namespace brindlex
