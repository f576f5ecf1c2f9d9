#include "ui/controls/StepSlider.h"

#include "ui/controls/TextSize.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr QSize grooveSize{200, 22};
constexpr int valueWidth = 56;
constexpr int gap = 12;

} // namespace

/// Lets the page scroll past it.
class StepSlider::Slider : public QSlider {
public:
    Slider() : QSlider(Qt::Horizontal)
    {
        setFixedSize(grooveSize);
        setFocusPolicy(Qt::StrongFocus);
        setPageStep(1);
    }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

StepSlider::StepSlider(const Theme& theme, const QString& name, Steps steps,
    std::function<void(int step)> moved, QWidget* parent)
    : QWidget(parent), slider_(new Slider), value_(new TextLabel(theme, TextRole::value, {}))
{
    slider_->setAccessibleName(name);
    slider_->setRange(steps.least, steps.most);
    value_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    followTextSize(*value_, [value = value_, steps] {
        int widest = valueWidth;
        for (int step = steps.least; step <= steps.most; ++step)
            widest = std::max(widest, value->fontMetrics().horizontalAdvance(steps.text(step)));
        value->setFixedWidth(widest);
    });
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(gap);
    layout->addWidget(slider_);
    layout->addWidget(value_);
    setFocusProxy(slider_);
    connect(slider_, &QSlider::valueChanged, this,
        [this, steps = std::move(steps), moved = std::move(moved)](int step) {
            value_->setText(steps.text(step));
            moved(step);
        });
}

void StepSlider::show(int step, const QString& words)
{
    const QSignalBlocker blocker(slider_);
    slider_->setValue(step);
    value_->setText(words);
}

} // namespace brindlex
