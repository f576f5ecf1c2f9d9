#pragma once

#include "platform/linux/appearance/AppearanceChoice.h"
#include "platform/linux/appearance/FileAppearance.h"
#include "platform/linux/appearance/PortalAppearance.h"
#include "platform/linux/appearance/XSettingsAppearance.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace brindlex {

/// How the user wants programs to look, wherever the desktop keeps that, followed while it changes:
/// in the settings portal, in KDE's `kdeglobals`, with the settings manager of the screen, in GTK's
/// `settings.ini`. See `chosenAppearance` for which counts.
///
/// The portal replies later; all else counts at once. Main thread only.
class LinuxAppearance {
public:
    /// `configHome` is where programs keep their settings. The connection outlives it.
    LinuxAppearance(X11Connection& display, const QDBusConnection& bus,
        const std::filesystem::path& configHome, DesktopFamily family);

    const Observable<DesktopAppearance>& current() const { return current_; }

private:
    void choose();

    const DesktopFamily family_;
    PortalAppearance portal_;
    XSettingsAppearance xSettings_;
    FileAppearance gtk4_;
    FileAppearance gtk3_;
    std::optional<FileAppearance> kde_;
    Observable<DesktopAppearance> current_{DesktopAppearance{}};
    std::vector<Subscription> changes_;
};

} // namespace brindlex
