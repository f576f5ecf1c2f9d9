#include "ui/controls/TableCells.h"

#include "ui/controls/TextSize.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace brindlex {
namespace {

constexpr int firstMargin = 16;
constexpr int margin = 6;
constexpr int barWidth = 3;
constexpr int checkSize = 16;
constexpr int dotSize = 8;
constexpr int smallIcon = 20;
constexpr int largeIcon = 32;
constexpr int iconGap = 10;

QRect checkPlace(const QRect& cell)
{
    QRect place(0, 0, checkSize, checkSize);
    place.moveCenter(cell.center());
    return place;
}

} // namespace

TableCells::TableCells(const Theme& theme, QObject* parent)
    : QStyledItemDelegate(parent), theme_(theme)
{
}

TableCells::TableCells(const Theme& theme, int rowHeight, QObject* parent)
    : QStyledItemDelegate(parent), theme_(theme), rowHeight_(rowHeight)
{
}

QSize TableCells::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto hint = QStyledItemDelegate::sizeHint(option, index);
    return rowHeight_ > 0 ? QSize(hint.width(), std::max(grownWithText(rowHeight_), hint.height()))
                          : hint;
}

void TableCells::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintGround(*painter, option, index);
    const auto check = index.data(Qt::CheckStateRole);
    if (check.isValid()) {
        paintCheck(*painter, checkPlace(option.rect), check.toInt() == Qt::Checked);
    } else {
        const int left = index.column() == 0 ? firstMargin : margin;
        const auto place = paintLeading(*painter, option.rect.adjusted(left, 0, -margin, 0), index);
        paintWords(*painter, paintTrailing(*painter, place, option, index), option, index);
    }
    painter->restore();
}

bool TableCells::editorEvent(QEvent* event, QAbstractItemModel* model,
    const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto check = index.data(Qt::CheckStateRole);
    if (!check.isValid())
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const bool isClick = event->type() == QEvent::MouseButtonRelease
        && dynamic_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    const bool isKey = event->type() == QEvent::KeyPress
        && dynamic_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    if (!isClick && !isKey)
        return false;
    const auto other = check.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    return model->setData(index, other, Qt::CheckStateRole);
}

void TableCells::paintGround(
    QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!(option.state & QStyle::State_Selected))
        return;
    painter.fillRect(option.rect, theme_.colour(&ThemeTokens::select));
    if (index.column() == 0)
        painter.fillRect(QRect(option.rect.topLeft(), QSize(barWidth, option.rect.height())),
            theme_.colour(&ThemeTokens::accent));
}

void TableCells::paintCheck(QPainter& painter, const QRect& place, bool isChecked) const
{
    const QRectF box(place);
    painter.setPen(isChecked ? QPen(Qt::NoPen) : QPen(theme_.colour(&ThemeTokens::edge), 1));
    painter.setBrush(theme_.colour(isChecked ? &ThemeTokens::accent : &ThemeTokens::card));
    painter.drawRoundedRect(isChecked ? box : box.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    if (!isChecked)
        return;
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{box.topLeft() + QPointF(4, 8.5),
        box.topLeft() + QPointF(7, 11.5), box.topLeft() + QPointF(12, 5)});
}

QRect TableCells::paintLeading(QPainter& painter, QRect place, const QModelIndex& index) const
{
    const auto icon = index.data(Qt::DecorationRole).value<QIcon>();
    if (!icon.isNull()) {
        const bool isLarge = index.data(secondLineRole).isValid();
        const int size = isLarge ? largeIcon : smallIcon;
        icon.paint(&painter, QRect(place.left(), place.center().y() - size / 2 + 1, size, size));
        place.setLeft(place.left() + size + iconGap);
    }
    const auto dot = index.data(dotRole);
    if (dot.isValid()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme_.colour(dot.value<Token>()));
        painter.drawEllipse(QRectF(place.left(), place.center().y() - 3, dotSize, dotSize));
        place.setLeft(place.left() + dotSize + margin + 1);
    }
    return place;
}

QRect TableCells::paintTrailing(QPainter& painter, QRect place, const QStyleOptionViewItem& option,
    const QModelIndex& index) const
{
    const auto text = index.data(trailingTextRole).toString();
    if (text.isEmpty())
        return place;
    place.setRight(place.right() - margin);
    painter.setFont(scaledFont(option.font, textScale::second));
    painter.setPen(theme_.colour(&ThemeTokens::subdued));
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, text);
    place.setRight(place.right() - painter.fontMetrics().horizontalAdvance(text) - iconGap);
    return place;
}

void TableCells::paintWords(QPainter& painter, const QRect& place,
    const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto alignment = index.data(Qt::TextAlignmentRole).isValid()
        ? Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt())
        : Qt::AlignLeft | Qt::AlignVCenter;
    const auto write = [&](const QRect& where, const QString& text, const QFont& font, Token ink) {
        painter.setFont(font);
        painter.setPen(theme_.colour(ink));
        painter.drawText(where, static_cast<int>(alignment),
            QFontMetrics(font).elidedText(text, Qt::ElideRight, where.width()));
    };
    const auto ink = index.data(inkRole);
    const auto token = ink.isValid() ? ink.value<Token>() : &ThemeTokens::text;
    const auto font
        = index.data(fixedWidthRole).toBool() ? fixedWidthFont(option.font) : option.font;
    const auto second = index.data(secondLineRole).toString();
    const auto text = index.data(Qt::DisplayRole).toString();
    if (second.isEmpty()) {
        write(place, text, font, token);
        return;
    }
    const auto small = scaledFont(option.font, textScale::second);
    const int height = QFontMetrics(font).height();
    const int top = place.center().y() - (height + QFontMetrics(small).height()) / 2;
    write({place.left(), top, place.width(), height}, text, font, token);
    write({place.left(), top + height, place.width(), QFontMetrics(small).height()}, second, small,
        &ThemeTokens::subdued);
}

} // namespace brindlex
