#pragma once

#include "platform/UserFolders.h"

#include <functional>
#include <string>
#include <string_view>

namespace brindlex {

/// The folder that the text of a `user-dirs.dirs` names under a key such as "XDG_DOWNLOAD_DIR";
/// the last line for the key counts. Nothing for one that is not named in the form of that file or
/// that leads to the home folder itself, which is how a user says that there is none.
std::optional<std::filesystem::path> userDirectory(
    std::string_view userDirs, std::string_view key, const std::filesystem::path& home);

/// The user's folders by the rules of freedesktop.org. What the environment says is read once, at
/// construction; a folder that it gives as a relative path counts as not given.
class XdgUserFolders : public UserFolders {
public:
    using Environment = std::function<const char*(const char* name)>;

    XdgUserFolders();
    explicit XdgUserFolders(const Environment& environment);

    std::filesystem::path home() const override { return home_; }
    std::filesystem::path dataHome() const override { return dataHome_; }
    /// As `user-dirs.dirs` says at the moment of asking.
    std::optional<std::filesystem::path> downloads() const override;

    /// Where programs keep their settings; it may not exist yet.
    const std::filesystem::path& configHome() const { return configHome_; }

private:
    std::filesystem::path home_;
    std::filesystem::path configHome_;
    std::filesystem::path dataHome_;
};

} // namespace brindlex
