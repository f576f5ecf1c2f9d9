#pragma once

#include "ui/controls/Theme.h"

#include <QIcon>
#include <QPixmap>

namespace brindlex {

/// The small pictures of all screens: one family, of strokes.
enum class Glyph {
    none,
    about,
    add,
    application,
    arrow,
    chevronDown,
    clipboard,
    cross,
    dictation,
    file,
    files,
    follow,
    gear,
    general,
    globe,
    keyboard,
    mouse,
    person,
    picture,
    reload,
    search,
    target,
    text,
    trash,
    warning,
};

/// The glyph in a colour, with `size` logical pixels in width and height; `ratio` device pixels for
/// each.
QPixmap glyphPixmap(Glyph glyph, const QColor& colour, int size, double ratio);

/// The glyph in a colour of the theme, that of the moment when it is painted. A button that is on,
/// or a tab that is selected, shows it in `inkWhenOn`.
QIcon glyphIcon(const Theme& theme, Glyph glyph, Token ink, Token inkWhenOn);
QIcon glyphIcon(const Theme& theme, Glyph glyph, Token ink);

} // namespace brindlex
