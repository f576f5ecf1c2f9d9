#pragma once

#include "ui/theme/Colour.h"

#include <optional>

namespace brindlex {

/// The colours of all screens, by what they are for.
///
/// Words in any of the inks have a contrast of at least 4.5 on each ground, white words the same on
/// `accent`, and the shapes of controls at least 3.
struct ThemeTokens {
    // Grounds.
    Colour window{};
    /// Cards, tables and fields for text.
    Colour card{};
    /// The strips at the top and the bottom of a window.
    Colour bar{};
    /// Choosers, buttons, key caps and the selected tab.
    Colour soft{};
    /// A row under the pointer.
    Colour hover{};
    /// A selected row, a field that records, a toggle that is pressed.
    Colour select{};

    // Shapes.
    /// Hairlines and the borders of cards.
    Colour line{};
    /// The borders of fields, a switch that is off, a dot that says nothing.
    Colour edge{};
    /// The empty part of a slider.
    Colour track{};
    /// What is filled: a switch that is on, the default button.
    Colour accent{};

    // Inks.
    Colour text{};
    /// Second lines, values, heads and hints.
    Colour subdued{};
    /// What is drawn: links, rows to add, the selected tab, the ring of the focus.
    Colour accentText{};
    Colour warning{};
    Colour success{};
    Colour danger{};

    constexpr bool operator==(const ThemeTokens&) const = default;
};

/// How bright a desktop is.
enum class Brightness { light, dark };

/// The colours for a desktop; with its accent colour, if it names one, brought to the contrasts
/// above by its lightness alone.
ThemeTokens themeTokens(Brightness brightness, std::optional<Colour> accent = {});

} // namespace brindlex
