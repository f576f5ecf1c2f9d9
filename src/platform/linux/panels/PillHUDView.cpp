#include "platform/linux/panels/PillHUDView.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

/// No label needs more, and laying out text costs time in proportion to its length.
constexpr int longestLabel = 512;

QFont systemFont()
{
    auto font = QGuiApplication::font();
    font.setPixelSize(PillHUDView::fontSize);
    return font;
}

/// The text with its line ends as the text layout knows them.
QString prepared(const QString& label)
{
    auto text = label.left(longestLabel);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\n', QChar::LineSeparator);
    return text;
}

} // namespace

PillHUDView::PillHUDView(const QString& label, int mostWidth)
    : label_(label), layout_(prepared(label), systemFont())
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout_.setTextOption(option);
    layOut(std::max(mostWidth - 2 * horizontalPadding, fontSize));
}

void PillHUDView::layOut(int mostTextWidth)
{
    layout_.beginLayout();
    int lines = 0;
    int start = 0;
    for (auto line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setLineWidth(mostTextWidth);
        if (++lines < mostLines)
            start = line.textStart() + line.textLength();
        if (lines > mostLines)
            break;
    }
    layout_.endLayout();
    if (lines > mostLines) {
        const auto text = layout_.text();
        const auto rest = QFontMetricsF(layout_.font())
                              .elidedText(text.mid(start).replace(QChar::LineSeparator, u' '),
                                  Qt::ElideRight, mostTextWidth);
        layout_.setText(text.left(start) + rest);
        return layOut(mostTextWidth);
    }

    textSize_ = {};
    for (int index = 0; index < layout_.lineCount(); ++index) {
        auto line = layout_.lineAt(index);
        line.setPosition({0, textSize_.height()});
        textSize_.rheight() += line.height();
        textSize_.setWidth(std::max(textSize_.width(), line.naturalTextWidth()));
    }
    // Each line in the middle, whatever its direction.
    for (int index = 0; index < layout_.lineCount(); ++index) {
        auto line = layout_.lineAt(index);
        const auto indent = line.naturalTextRect().left() - line.position().x();
        line.setPosition(
            {(textSize_.width() - line.naturalTextWidth()) / 2 - indent, line.position().y()});
    }
}

QSize PillHUDView::fittingSize() const
{
    return {static_cast<int>(std::ceil(textSize_.width())) + 2 * horizontalPadding,
        static_cast<int>(std::ceil(textSize_.height())) + 2 * verticalPadding};
}

void PillHUDView::paint(QPainter& painter, Fill fill) const
{
    const QRectF area({0, 0}, QSizeF(fittingSize()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (fill == Fill::translucent) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(area, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.setBrush(QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity)));
        painter.drawRoundedRect(area, cornerRadius, cornerRadius);
    } else {
        painter.fillRect(area, QColor(44, 44, 46));
        // The edge that a dark screen behind would swallow.
        painter.setPen(QPen(QColor(92, 92, 96), 2));
        painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), cornerRadius - 1, cornerRadius - 1);
    }
    painter.setPen(Qt::white);
    layout_.draw(&painter, {horizontalPadding, verticalPadding});
}

} // namespace brindlex
