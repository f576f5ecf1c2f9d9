#include "ui/controls/ToggleSwitch.h"

#include "ui/controls/TextSize.h"

#include <QPainter>
#include <QSignalBlocker>

#include <utility>

namespace brindlex {
namespace {

/// The switch, and the room around it for the ring of the focus.
constexpr QSize shape{38, 22};
constexpr int ringRoom = 4;
constexpr QSize whole{shape.width() + 2 * ringRoom, shape.height() + 2 * ringRoom};
constexpr double knobRadius = 8.5;
constexpr int milliseconds = 120;
/// How much of one is drawn that cannot be switched.
constexpr double opacityWhenDisabled = 0.45;

QColor between(const QColor& from, const QColor& to, double part)
{
    const auto mixed = [part](int one, int other) { return qRound(one + (other - one) * part); };
    return {mixed(from.red(), to.red()), mixed(from.green(), to.green()),
        mixed(from.blue(), to.blue())};
}

} // namespace

ToggleSwitch::ToggleSwitch(const Theme& theme, const QString& name,
    std::function<void(bool isOn)> switched, QWidget* parent)
    : QAbstractButton(parent), theme_(theme)
{
    setCheckable(true);
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    followTextSize(*this, [this] { setFixedSize(sizeHint()); });
    connect(this, &QAbstractButton::clicked, this,
        [switched = std::move(switched)](bool isOn) { switched(isOn); });
    motion_.setDuration(milliseconds);
    connect(&motion_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        position_ = value.toDouble();
        update();
    });
}

void ToggleSwitch::show(bool isOn)
{
    if (isOn == isChecked())
        return;
    const QSignalBlocker blocker(this);
    setChecked(isOn);
    motion_.stop();
    position_ = isOn ? 1 : 0;
    update();
}

QSize ToggleSwitch::sizeHint() const { return grownWithText(whole); }

void ToggleSwitch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(1.0 * width() / whole.width(), 1.0 * height() / whole.height());
    const QRectF track(QPointF(ringRoom, ringRoom), shape);
    const double radius = track.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setOpacity(isEnabled() ? 1 : opacityWhenDisabled);
    painter.setBrush(
        between(theme_.colour(&ThemeTokens::edge), theme_.colour(&ThemeTokens::accent), position_));
    painter.drawRoundedRect(track, radius, radius);
    painter.setBrush(Qt::white);
    const double way = track.width() - track.height();
    painter.drawEllipse(QPointF(track.left() + radius + way * position_, track.center().y()),
        knobRadius, knobRadius);
    if (!hasFocus())
        return;
    painter.setPen(QPen(theme_.colour(&ThemeTokens::accentText), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        QRectF(QPointF(), whole).adjusted(1, 1, -1, -1), radius + 3, radius + 3);
}

void ToggleSwitch::nextCheckState()
{
    setChecked(!isChecked());
    moveTo(isChecked() ? 1 : 0);
}

void ToggleSwitch::moveTo(double position)
{
    motion_.stop();
    if (theme_.reducesMotion()) {
        position_ = position;
        update();
        return;
    }
    motion_.setStartValue(position_);
    motion_.setEndValue(position);
    motion_.start();
}

} // namespace brindlex
