#include "ui/controls/Card.h"

#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace brindlex {
namespace {

constexpr double radius = 10;

} // namespace

Card::Card(const Theme& theme, QWidget* parent)
    : QFrame(parent), theme_(theme), layout_(new QVBoxLayout(this))
{
    layout_->setContentsMargins(1, 1, 1, 1);
    layout_->setSpacing(0);
}

Row& Card::add(Row* row)
{
    layout_->addWidget(row);
    return *row;
}

void Card::add(QWidget* row) { layout_->addWidget(row); }

void Card::insert(int index, Row* row)
{
    const int present = layout_->indexOf(row);
    if (present == index)
        return;
    if (present >= 0)
        layout_->removeWidget(row);
    layout_->insertWidget(index, row);
}

void Card::remove(QWidget* row)
{
    layout_->removeWidget(row);
    row->hide();
    row->deleteLater();
}

/// That is the order of the children, which is the one in which they are stacked.
void Card::putInOrder()
{
    for (int index = 0; index < layout_->count(); ++index)
        if (auto* const widget = layout_->itemAt(index)->widget())
            widget->raise();
}

Row& Card::setting(const QString& title, const QString& second, QWidget* control)
{
    auto* const row = new Row(theme_);
    row->words(title, second).end(control);
    return add(row);
}

void Card::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.fillPath(shape, theme_.colour(&ThemeTokens::card));
    painter.setClipPath(shape);
    bool isFirst = true;
    for (int index = 0; index < layout_->count(); ++index) {
        const auto* const widget = layout_->itemAt(index)->widget();
        if (!widget || widget->isHidden())
            continue;
        const auto* const row = dynamic_cast<const Row*>(widget);
        if (row && row->isRemovable() && row->isHot())
            painter.fillRect(row->geometry(), theme_.colour(&ThemeTokens::hover));
        const int left = row ? row->x() + row->wordsLeft() : 0;
        if (!isFirst)
            painter.fillRect(
                QRect(left, widget->y(), width() - left, 1), theme_.colour(&ThemeTokens::line));
        isFirst = false;
    }
    painter.setClipping(false);
    painter.setPen(theme_.colour(&ThemeTokens::line));
    painter.drawPath(shape);
}

} // namespace brindlex
