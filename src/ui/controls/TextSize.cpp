#include "ui/controls/TextSize.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr double designedPoints = 10;

double growth() { return std::max(1.0, QApplication::font().pointSizeF() / designedPoints); }

/// Notices the changes of the font of the widget that it belongs to.
class FontFollower : public QObject {
public:
    FontFollower(QWidget& widget, std::function<void()> apply)
        : QObject(&widget), apply_(std::move(apply))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
            apply_();
        return false;
    }

private:
    const std::function<void()> apply_;
};

} // namespace

int grownWithText(int length) { return qRound(length * growth()); }

QSize grownWithText(const QSize& size)
{
    return {grownWithText(size.width()), grownWithText(size.height())};
}

void followTextSize(QWidget& widget, std::function<void()> apply)
{
    apply();
    new FontFollower(widget, std::move(apply));
}

} // namespace brindlex
