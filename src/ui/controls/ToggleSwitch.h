#pragma once

#include "ui/controls/Theme.h"

#include <QAbstractButton>
#include <QVariantAnimation>

#include <functional>

namespace brindlex {

/// On or off, at once. The theme outlives it.
class ToggleSwitch : public QAbstractButton {
public:
    /// `name` is what a screen reader calls it; `switched` is called when the user switches it.
    ToggleSwitch(const Theme& theme, const QString& name, std::function<void(bool isOn)> switched,
        QWidget* parent = nullptr);

    /// Shows another state without anybody being notified.
    void show(bool isOn);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override;

private:
    void moveTo(double position);

    const Theme& theme_;
    QVariantAnimation motion_;
    /// From 0 for off to 1 for on.
    double position_ = 0;
};

} // namespace brindlex
