#include "ui/controls/TabStrip.h"

#include "ui/controls/TextSize.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace brindlex {
namespace {

constexpr int stripHeight = 72;
constexpr int tabHeight = 56;
constexpr int leastTab = 72;
constexpr int padding = 6;
/// Between two tabs.
constexpr int gap = 4;
constexpr int glyphSize = 22;
constexpr double radius = 8;

} // namespace

TabStrip::TabStrip(const Theme& theme, QWidget* parent) : QTabBar(parent), theme_(theme)
{
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
    followTextSize(*this, [this] { setFont(scaledFont(QApplication::font(), textScale::second)); });
}

void TabStrip::addTab(Glyph glyph, const QString& text)
{
    glyphs_.push_back(glyph);
    QTabBar::addTab(text);
}

QSize TabStrip::sizeHint() const
{
    int width = 0;
    for (int index = 0; index < count(); ++index)
        width += tabSizeHint(index).width();
    return {width, tabSizeHint(0).height()};
}

QSize TabStrip::minimumSizeHint() const
{
    int width = 0;
    for (int index = 0; index < count(); ++index)
        width += minimumTabSizeHint(index).width();
    return {width, sizeHint().height()};
}

/// With the width of the word when its tab is selected, so that the tabs stay where they are.
QSize TabStrip::tabSizeHint(int index) const
{
    const QFontMetrics metrics(fontOf(true));
    const int width = std::max(leastTab, metrics.horizontalAdvance(tabText(index)) + 2 * padding);
    return {width + gap,
        std::max(stripHeight - 1, stripHeight - tabHeight + glyphSize + metrics.height() + 12)};
}

QSize TabStrip::minimumTabSizeHint(int index) const
{
    const auto usual = tabSizeHint(index);
    return index == currentIndex() ? usual : QSize(glyphSize + 2 * padding + gap, usual.height());
}

void TabStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < count(); ++index)
        paintTab(painter, index);
}

void TabStrip::resizeEvent(QResizeEvent* event)
{
    QTabBar::resizeEvent(event);
    for (int index = 0; index < count(); ++index)
        setTabToolTip(index, hasRoomForWords() ? QString() : tabText(index));
}

void TabStrip::wheelEvent(QWheelEvent* event) { event->ignore(); }

void TabStrip::focusInEvent(QFocusEvent* event)
{
    showsRing_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QTabBar::focusInEvent(event);
}

void TabStrip::keyPressEvent(QKeyEvent* event)
{
    showsRing_ = true;
    update();
    QTabBar::keyPressEvent(event);
}

QFont TabStrip::fontOf(bool isSelected) const
{
    auto font = scaledFont(QApplication::font(), textScale::second);
    font.setWeight(isSelected ? QFont::DemiBold : QFont::Normal);
    return font;
}

void TabStrip::paintTab(QPainter& painter, int index)
{
    const bool isSelected = index == currentIndex();
    const auto place = tabRect(index);
    const int above = (place.height() - (place.height() - (stripHeight - tabHeight))) / 2;
    const QRectF ground = QRectF(place).adjusted(gap / 2, above, -gap / 2, -above);
    const bool isHovered = place.contains(mapFromGlobal(QCursor::pos())) && underMouse();
    if (isSelected || isHovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme_.colour(isSelected ? &ThemeTokens::soft : &ThemeTokens::hover));
        painter.drawRoundedRect(ground, radius, radius);
    }
    if (isSelected && hasFocus() && showsRing_) {
        painter.setPen(QPen(theme_.colour(&ThemeTokens::accentText), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(ground.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    }
    const auto ink = theme_.colour(isSelected ? &ThemeTokens::accentText : &ThemeTokens::subdued);
    const QFont font = fontOf(isSelected);
    const bool hasWord = isSelected || hasRoomForWords();
    const int words = hasWord ? QFontMetrics(font).height() : 0;
    const int between = hasWord ? 3 : 0;
    const double top = ground.center().y() - (glyphSize + between + words) / 2.0;
    painter.drawPixmap(QPointF(ground.center().x() - glyphSize / 2.0, top).toPoint(),
        glyphPixmap(glyphs_[static_cast<std::size_t>(index)], ink, glyphSize, devicePixelRatioF()));
    if (!hasWord)
        return;
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(QRectF(ground.left(), top + glyphSize + between, ground.width(), words),
        Qt::AlignCenter, tabText(index));
}

} // namespace brindlex
