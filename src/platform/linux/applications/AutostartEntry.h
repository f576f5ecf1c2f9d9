#pragma once

#include "platform/LoginItem.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What the effect of an autostart entry depends on, beside its text.
struct AutostartDesktop {
    /// The names of the desktop that runs, as `XDG_CURRENT_DESKTOP` has them.
    std::vector<std::string> names{};
    /// Whether a program, a path or a name, is there and can be run.
    std::function<bool(const std::string& program)> canRun{};
};

/// What an autostart entry starts.
struct AutostartProgram {
    std::string name{};
    std::filesystem::path file{};
};

/// What a desktop does with the text of an entry (Desktop Application Autostart Specification 0.5):
/// nothing is registered by a hidden one and by one that starts nothing; one that is for other
/// desktops, whose program is missing, or that GNOME's key switches off is registered and off.
LoginItem::Status autostartStatus(std::string_view text, const AutostartDesktop& desktop);

/// The entry that starts the program with `--started-at-login` on this desktop, made of the text as
/// far as that is an entry; keys that have nothing to do with it stay.
std::string autostartEntryOn(
    std::string_view text, const AutostartProgram& program, const AutostartDesktop& desktop);

/// The same entry, hidden.
std::string autostartEntryOff(std::string_view text);

} // namespace brindlex
