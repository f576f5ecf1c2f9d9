#include "ui/controls/TextLabel.h"

#include "ui/controls/TextSize.h"

#include <QApplication>

#include <utility>

namespace brindlex {
namespace {

double scaleOf(TextRole role)
{
    switch (role) {
    case TextRole::body:
    case TextRole::value:
        return 1.0;
    case TextRole::heading:
        return textScale::heading;
    case TextRole::title:
        return textScale::title;
    case TextRole::second:
    case TextRole::warning:
        return textScale::second;
    }
    return 1.0;
}

Token inkOf(TextRole role)
{
    switch (role) {
    case TextRole::body:
    case TextRole::heading:
    case TextRole::title:
        return &ThemeTokens::text;
    case TextRole::second:
    case TextRole::value:
        return &ThemeTokens::subdued;
    case TextRole::warning:
        return &ThemeTokens::warning;
    }
    return &ThemeTokens::text;
}

bool isStrong(TextRole role) { return role == TextRole::heading || role == TextRole::title; }

bool wraps(TextRole role) { return role == TextRole::second || role == TextRole::warning; }

} // namespace

TextLabel::TextLabel(const Theme& theme, TextRole role, const QString& text, QWidget* parent)
    : QLabel(parent), theme_(theme), role_(role)
{
    // What comes from outside, such as the name of an application, is no markup.
    setTextFormat(Qt::PlainText);
    setRole(role);
    setText(text);
    followTextSize(*this, [this] { applyFont(); });
}

void TextLabel::setRole(TextRole role)
{
    role_ = role;
    setWordWrap(wraps(role));
    applyFont();
    update();
}

void TextLabel::paintEvent(QPaintEvent* event)
{
    const auto ink = theme_.colour(isEnabled() ? inkOf(role_) : &ThemeTokens::subdued);
    if (palette().color(QPalette::WindowText) != ink) {
        auto inked = palette();
        inked.setColor(QPalette::WindowText, ink);
        setPalette(inked);
    }
    QLabel::paintEvent(event);
}

void TextLabel::applyFont()
{
    if (std::exchange(appliesFont_, true))
        return;
    auto font = scaledFont(QApplication::font(), scaleOf(role_));
    if (isStrong(role_))
        font.setWeight(QFont::DemiBold);
    setFont(font);
    appliesFont_ = false;
}

} // namespace brindlex
