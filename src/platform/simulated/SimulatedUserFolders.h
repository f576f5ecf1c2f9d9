#pragma once

#include "platform/UserFolders.h"

#include <utility>

namespace brindlex {

/// Folders that are wherever a test wants them.
class SimulatedUserFolders : public UserFolders {
public:
    explicit SimulatedUserFolders(std::filesystem::path home = "/home/user")
        : homeFolder(std::move(home)), dataFolder(homeFolder / ".local/share"),
          downloadsFolder(homeFolder / "Downloads")
    {
    }

    std::filesystem::path home() const override { return homeFolder; }
    std::filesystem::path dataHome() const override { return dataFolder; }
    std::optional<std::filesystem::path> downloads() const override { return downloadsFolder; }

    std::filesystem::path homeFolder;
    std::filesystem::path dataFolder;
    std::optional<std::filesystem::path> downloadsFolder;
};

} // namespace brindlex
