#pragma once

#include "ui/controls/Glyph.h"
#include "ui/controls/Theme.h"

#include <QPushButton>
#include <QToolButton>

#include <functional>

namespace brindlex {

enum class ButtonRole {
    plain,
    /// The one of its window that Return presses.
    defaultAction,
    /// For what cannot be taken back.
    danger,
    /// Words that lead elsewhere.
    link,
    /// A whole row of a list, which adds to it.
    add,
    /// One of a few beside one another of which one is pressed.
    segment,
};

/// A button with words. `pressed` is called when the user presses it. The theme outlives it.
QPushButton* makeButton(const Theme& theme, ButtonRole role, const QString& text,
    std::function<void()> pressed, Glyph glyph = Glyph::none);

/// A button with a glyph alone, faint until the pointer or the focus is on it. `name` is its tool
/// tip and what a screen reader calls it.
QToolButton* makeGlyphButton(const Theme& theme, Glyph glyph, const QString& name,
    std::function<void()> pressed, Token ink = &ThemeTokens::subdued);

} // namespace brindlex
