#pragma once

#include "platform/LoginItem.h"
#include "platform/linux/applications/AutostartEntry.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The login item as an autostart entry (Desktop Application Autostart Specification 0.5).
///
/// The entry of the first folder that has one counts. It is changed in the first folder, the user's
/// own, whose entry is replaced in one step; one of the system is left alone and overridden. What
/// is unregistered is hidden, not removed, so that nothing that a user has written is lost.
class XdgLoginItem : public LoginItem {
public:
    /// The folders with settings, in order of precedence; their subfolders "autostart" have the
    /// entries. The identifier is the name of the file without its suffix.
    XdgLoginItem(const std::vector<std::filesystem::path>& configFolders,
        const std::string& identifier, AutostartProgram program, std::vector<std::string> desktop);

    /// On the desktop that the environment names.
    static XdgLoginItem ofUser(const std::string& identifier, AutostartProgram program);

    Status status() override;
    Result<Done, std::string> registerProgram() override;
    Result<Done, std::string> unregisterProgram() override;

private:
    /// The text of the entry that counts; nothing when there is none that can be read.
    std::optional<std::string> text() const;
    Result<Done, std::string> replace(const std::string& text) const;

    std::vector<std::filesystem::path> files_;
    const AutostartProgram program_;
    const AutostartDesktop desktop_;
};

} // namespace brindlex
