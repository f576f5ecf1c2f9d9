#pragma once

#include "support/screen/XConnection.h"

#include <cstdint>
#include <map>
#include <string>
#include <variant>

namespace brindlex {

/// What a settings manager sets, by name.
using ManagedSettings = std::map<std::string, std::variant<std::int32_t, std::string>>;

/// As `_XSETTINGS_SETTINGS` holds them.
std::string settingsContent(const ManagedSettings& settings, bool isMostSignificantFirst = false);

/// A settings manager (XSETTINGS) of the test's own, which announces itself. Its end is like that
/// of one that crashes.
class SettingsManager {
public:
    explicit SettingsManager(const ManagedSettings& settings);
    SettingsManager(const SettingsManager&) = delete;
    SettingsManager& operator=(const SettingsManager&) = delete;

    void set(const ManagedSettings& settings) { setContent(settingsContent(settings)); }
    /// Any bytes, whatever they mean.
    void setContent(const std::string& content);
    /// Goes on without content.
    void clear();

private:
    XConnection server_;
    const xcb_window_t window_;
    const xcb_atom_t property_;
};

} // namespace brindlex
