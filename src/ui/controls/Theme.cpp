#include "ui/controls/Theme.h"

#include "ui/controls/StyleSheet.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QPalette>
#include <QWidget>

#include <memory>
#include <utility>

namespace brindlex {
namespace {

QPalette paletteOf(const Theme& theme)
{
    QPalette palette(theme.colour(&ThemeTokens::soft), theme.colour(&ThemeTokens::window));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, theme.colour(&ThemeTokens::text));
    palette.setColor(QPalette::PlaceholderText, theme.colour(&ThemeTokens::subdued));
    palette.setColor(QPalette::Base, theme.colour(&ThemeTokens::card));
    palette.setColor(QPalette::Highlight, theme.colour(&ThemeTokens::accent));
    palette.setColor(QPalette::HighlightedText, theme.colour(&ThemeTokens::card));
    return palette;
}

/// Hands the font of the program on to all that is in a window when it changes, which a window with
/// a style sheet does not do by itself.
class FontHandOn : public QObject {
public:
    FontHandOn(const Theme& theme, QWidget& window) : QObject(&window), theme_(theme)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ApplicationFontChange)
            return false;
        auto& window = static_cast<QWidget&>(*watched);
        window.setStyleSheet({});
        window.setFont(QApplication::font());
        for (auto* const widget : window.findChildren<QWidget*>())
            QCoreApplication::sendEvent(widget, event);
        window.setStyleSheet(styleSheet(theme_));
        return false;
    }

private:
    const Theme& theme_;
};

} // namespace

QColor Theme::colour(Token token) const
{
    const auto& found = tokens().*token;
    return {found.red, found.green, found.blue};
}

void Theme::dress(QWidget& window) const
{
    const auto apply = [this, &window](const Look&) {
        window.setPalette(paletteOf(*this));
        window.setStyleSheet(styleSheet(*this));
    };
    new FontHandOn(*this, window);
    const auto changes = std::make_shared<Subscription>(look_.subscribe(apply));
    QObject::connect(&window, &QObject::destroyed, &window, [changes] { changes->reset(); });
}

QFont scaledFont(QFont font, double scale)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(qRound(font.pixelSize() * scale));
    return font;
}

QFont fixedWidthFont(const QFont& font)
{
    auto fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (font.pointSizeF() > 0)
        fixed.setPointSizeF(font.pointSizeF());
    else
        fixed.setPixelSize(font.pixelSize());
    return scaledFont(fixed, textScale::fixedWidth);
}

} // namespace brindlex
