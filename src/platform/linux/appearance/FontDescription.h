#pragma once

#include "platform/linux/appearance/DesktopAppearance.h"

#include <optional>
#include <string_view>

namespace brindlex {

/// The smallest and the largest font that windows are made for, in points.
inline constexpr double leastFontPoints = 6;
inline constexpr double mostFontPoints = 32;

/// A font as GTK writes it, "Noto Sans Bold 10.5" (Pango, `pango_font_description_from_string`):
/// families, words for its style, a size in points or with "px" in pixels. Of several families the
/// first counts. Widths such as "Condensed" belong to the family.
///
/// Sizes are brought into the range above. Nothing for what names no font.
std::optional<DesktopFont> pangoFont(std::string_view description);

/// A font as Qt writes it, "Noto Sans,10,-1,5,50,0,0,0,0,0" (`QFont::toString` of Qt 5 or Qt 6).
std::optional<DesktopFont> qtFont(std::string_view description);

} // namespace brindlex
