#pragma once

#include "platform/linux/appearance/DesktopAppearance.h"

#include <string_view>

namespace brindlex {

/// Whose settings the user of a session changes.
enum class DesktopFamily {
    /// GNOME, and what keeps its appearance where GNOME does.
    gnome,
    kde,
    other,
};

/// By `XDG_CURRENT_DESKTOP`, names between colons.
DesktopFamily desktopFamily(std::string_view currentDesktop);

/// What each of the places says where desktops keep the appearance.
struct AppearanceSources {
    StatedAppearance portal{};
    StatedAppearance kde{};
    StatedAppearance xSettings{};
    StatedAppearance gtk4{};
    StatedAppearance gtk3{};
};

/// The appearance that the user expects on a desktop: for each part of it what the first source
/// says that says something.
///
///     light or dark, motion   portal, KDE, XSETTINGS, GTK 4, GTK 3
///     accent                  portal, KDE
///     font                    portal on GNOME, KDE, XSETTINGS, GTK 4, GTK 3
///     scale of the text       XSETTINGS, portal on GNOME
///
/// KDE's own settings count on KDE alone. The portal's font and scale are GNOME's, of which portals
/// report on every desktop what nobody has chosen there.
DesktopAppearance chosenAppearance(const AppearanceSources& sources, DesktopFamily family);

} // namespace brindlex
