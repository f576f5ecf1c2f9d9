#include "platform/linux/panels/RoundedRegion.h"

#include <QBitmap>
#include <QPainter>

namespace brindlex {

QRegion roundedRegion(const QSize& size, int radius)
{
    QBitmap shape(size);
    shape.fill(Qt::color0);
    QPainter painter(&shape);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(QRect({0, 0}, size), radius, radius);
    painter.end();
    return {shape};
}

} // namespace brindlex
