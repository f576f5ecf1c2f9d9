#pragma once

#include "platform/linux/appearance/AppearanceChoice.h"

#include <functional>

namespace brindlex {

/// What the session in which the program was started offers, as far as the choice of providers
/// and of what they follow depends on it.
struct SessionOffer {
    using Environment = std::function<const char*(const char* name)>;

    /// Whether the session names an X server; under Wayland that is the one for X11 programs.
    bool hasX11 = false;
    DesktopFamily desktop = DesktopFamily::other;

    bool operator==(const SessionOffer&) const = default;

    /// As the environment says: `DISPLAY`, `XDG_CURRENT_DESKTOP`.
    static SessionOffer fromEnvironment(const Environment& environment);
};

} // namespace brindlex
