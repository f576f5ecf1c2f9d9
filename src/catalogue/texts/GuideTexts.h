#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// What the permission guide explains beside its rows.
inline constexpr auto guideTexts = std::to_array<CatalogueRow>({
    {"guide.accessibilityBus.missing",
        "The desktop has no accessibility service. Install the package at-spi2-core."},
    {"guide.accessibilityBus.off",
        "The desktop’s accessibility is off, so browsers do not say which page they show."},
    {"guide.accessibilityBus.restart", "Start your browsers again so that they take part."},
    {"guide.accessibilityBus.switchOn", "Switch On"},
    {"guide.allow", "Allow"},
    {"guide.refused", "You have switched this off in Brindlex."},
    {"guide.serverLacksFormat", "The X server lacks %@, which this needs."},
    {"guide.waylandSession",
        "A Wayland session gives the input to no program. Log in to an X11 session for this."},
});

} // namespace brindlex
