#pragma once

#include "ui/controls/TextSize.h"

#include <QIcon>
#include <QLabel>
#include <QPainter>

namespace brindlex {

/// A picture that follows the theme; words beside it say what it means. `size` logical pixels
/// wide beside words of the usual size, and larger beside larger ones.
class GlyphLabel : public QLabel {
public:
    GlyphLabel(QIcon icon, int size) : icon_(std::move(icon))
    {
        followTextSize(*this, [this, size] { setFixedSize(grownWithText(QSize(size, size))); });
    }

    void setIcon(QIcon icon)
    {
        icon_ = std::move(icon);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        icon_.paint(&painter, rect());
    }

private:
    QIcon icon_;
};

} // namespace brindlex
