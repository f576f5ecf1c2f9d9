#pragma once

#include "platform/linux/appearance/DesktopAppearance.h"
#include "platform/linux/appearance/XSettings.h"

#include <string_view>

namespace brindlex {

/// Whether a theme of GTK is a dark one by its name: a part of it is "dark", as in "Adwaita-dark",
/// "Mint-Y-Dark-Aqua" and "Adwaita:dark", or it is the inverse one of high contrast.
bool isDarkTheme(std::string_view name);

/// What the settings manager of the screen says: `Net/ThemeName`, `Gtk/FontName` and whether there
/// are animations.
///
/// Who sets `Xft/DPI` has put the scale of the text into it, which the window library follows: the
/// scale that is left is 1.
StatedAppearance gtkAppearance(const XSettings& settings);

/// What a `settings.ini` of GTK 3 or 4 says.
StatedAppearance gtkFileAppearance(std::string_view text);

} // namespace brindlex
