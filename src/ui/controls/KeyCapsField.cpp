#include "ui/controls/KeyCapsField.h"

#include "ui/controls/Glyph.h"
#include "ui/controls/TextSize.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr int leastWidth = 122;
constexpr int mostWidth = 160;
constexpr int fieldHeight = 28;
constexpr int leastCap = 20;
constexpr int capPadding = 10;
constexpr int capGap = 3;
constexpr int inset = 5;
constexpr int crossSize = 14;
constexpr int crossRoom = 24;
constexpr double radius = 6;

} // namespace

KeyCapsField::KeyCapsField(const Theme& theme, const QString& name, Words words, QWidget* parent)
    : QAbstractButton(parent), theme_(theme), name_(name), words_(std::move(words))
{
    setFocusPolicy(Qt::StrongFocus);
    followTextSize(*this, [this] {
        setFont(scaledFont(QApplication::font(), textScale::second));
        setFixedSize(KeyCapsField::sizeHint());
    });
    show({}, false);
}

void KeyCapsField::show(const QStringList& caps, bool isRecording)
{
    caps_ = caps;
    isRecording_ = isRecording;
    const auto said = caps_.isEmpty() ? words_.record : caps_.join(QLatin1Char('+'));
    setAccessibleName(name_ + QStringLiteral(": ") + (isRecording ? words_.pressKey : said));
    setToolTip(caps_.join(QLatin1Char('+')));
    setFixedSize(KeyCapsField::sizeHint());
    updateGeometry();
    update();
}

QSize KeyCapsField::sizeHint() const
{
    const int needed = std::max(capsWidth(),
        fontMetrics().horizontalAdvance(isRecording_ ? words_.pressKey : words_.record) + inset);
    return {std::clamp(needed + inset + crossRoom, leastWidth, grownWithText(mostWidth)),
        std::max(fieldHeight, fontMetrics().height() + 8)};
}

void KeyCapsField::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isRinged = isRecording_ || hasFocus();
    painter.setPen(QPen(theme_.colour(edge()), isRinged ? 2 : 1));
    painter.setBrush(theme_.colour(isRecording_ ? &ThemeTokens::select : &ThemeTokens::card));
    const double in = isRinged ? 1 : 0.5;
    painter.drawRoundedRect(QRectF(rect()).adjusted(in, in, -in, -in), radius, radius);
    if (hasCross())
        painter.drawPixmap(crossRect().topLeft(),
            glyphPixmap(Glyph::cross, theme_.colour(&ThemeTokens::subdued), crossSize,
                devicePixelRatioF()));
    if (!isRecording_ && !caps_.isEmpty() && capsWidth() + inset + crossRoom <= width()) {
        paintCaps(painter);
        return;
    }
    painter.setPen(theme_.colour(isRecording_ ? &ThemeTokens::text : &ThemeTokens::subdued));
    painter.drawText(rect().adjusted(inset + 4, 0, hasCross() ? -crossRoom : -inset, 0),
        Qt::AlignVCenter | Qt::AlignLeft, shownText());
}

void KeyCapsField::mouseReleaseEvent(QMouseEvent* event)
{
    if (hasCross() && isDown() && crossRect().marginsAdded({5, 7, 5, 7}).contains(event->pos())) {
        setDown(false);
        takeAway();
        return;
    }
    QAbstractButton::mouseReleaseEvent(event);
}

void KeyCapsField::keyPressEvent(QKeyEvent* event)
{
    const bool takesAway = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (takesAway && !caps_.isEmpty() && !isRecording_)
        takeAway();
    else
        QAbstractButton::keyPressEvent(event);
}

QRect KeyCapsField::crossRect() const
{
    return {width() - crossSize - inset, (height() - crossSize) / 2, crossSize, crossSize};
}

/// The ring while it has the focus or records; what can be pressed has a border of its own.
Token KeyCapsField::edge() const
{
    if (isRecording_ || hasFocus())
        return &ThemeTokens::accentText;
    return isEnabled() ? &ThemeTokens::edge : &ThemeTokens::line;
}

int KeyCapsField::capsWidth() const
{
    int sum = 0;
    for (const auto& cap : caps_)
        sum += capWidth(cap) + capGap;
    return sum;
}

int KeyCapsField::capWidth(const QString& cap) const
{
    return std::max(leastCap, fontMetrics().horizontalAdvance(cap) + capPadding);
}

void KeyCapsField::paintCaps(QPainter& painter) const
{
    const int capHeight = std::max(leastCap, fontMetrics().height());
    int left = inset;
    for (const auto& cap : caps_) {
        const QRect place(left, (height() - capHeight) / 2, capWidth(cap), capHeight);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme_.colour(&ThemeTokens::soft));
        painter.drawRoundedRect(place, 4, 4);
        painter.setPen(theme_.colour(ink()));
        painter.drawText(place, Qt::AlignCenter, cap);
        left += place.width() + capGap;
    }
}

/// Caps are never shortened: where there is no room for them stand their words.
QString KeyCapsField::shownText() const
{
    const auto text = isRecording_ ? words_.pressKey
        : caps_.isEmpty()          ? words_.record
                                   : caps_.join(QLatin1Char('+'));
    const int room = width() - 2 * inset - 4 - (hasCross() ? crossRoom : 0);
    return fontMetrics().elidedText(text, Qt::ElideRight, room);
}

void KeyCapsField::takeAway() const
{
    if (cleared)
        cleared();
}

} // namespace brindlex
