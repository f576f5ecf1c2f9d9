#include "ui/controls/Buttons.h"

#include "ui/controls/TextSize.h"

#include <utility>

namespace brindlex {
namespace {

constexpr QSize glyphSize{16, 16};
constexpr QSize slotSize{28, 28};

/// As the style sheet knows them.
const char* nameOf(ButtonRole role)
{
    switch (role) {
    case ButtonRole::plain:
    case ButtonRole::defaultAction:
        return "";
    case ButtonRole::danger:
        return "danger";
    case ButtonRole::link:
        return "link";
    case ButtonRole::add:
        return "add";
    case ButtonRole::segment:
        return "segment";
    }
    return "";
}

/// An ampersand is part of the words and marks no letter.
QString plainText(QString text) { return text.replace(QLatin1Char('&'), QLatin1String("&&")); }

} // namespace

QPushButton* makeButton(const Theme& theme, ButtonRole role, const QString& text,
    std::function<void()> pressed, Glyph glyph)
{
    auto* const button = new QPushButton(plainText(text));
    button->setAccessibleName(text);
    button->setProperty("role", QLatin1String(nameOf(role)));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoDefault(false);
    button->setDefault(role == ButtonRole::defaultAction);
    button->setCheckable(role == ButtonRole::segment);
    if (glyph != Glyph::none) {
        const auto ink = role == ButtonRole::add ? &ThemeTokens::accentText : &ThemeTokens::subdued;
        button->setIcon(glyphIcon(theme, glyph, ink, &ThemeTokens::accentText));
        followTextSize(*button, [button] { button->setIconSize(grownWithText(glyphSize)); });
    }
    if (pressed)
        QObject::connect(button, &QPushButton::clicked, button, [pressed] { pressed(); });
    return button;
}

QToolButton* makeGlyphButton(
    const Theme& theme, Glyph glyph, const QString& name, std::function<void()> pressed, Token ink)
{
    auto* const button = new QToolButton;
    button->setIcon(glyphIcon(theme, glyph, ink, &ThemeTokens::accentText));
    followTextSize(*button, [button] {
        button->setIconSize(grownWithText(glyphSize));
        button->setFixedSize(grownWithText(slotSize));
    });
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(name);
    button->setAccessibleName(name);
    QObject::connect(button, &QToolButton::clicked, button, [pressed] { pressed(); });
    return button;
}

} // namespace brindlex
