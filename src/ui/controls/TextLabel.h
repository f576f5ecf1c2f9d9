#pragma once

#include "ui/controls/Theme.h"

#include <QLabel>

namespace brindlex {

/// What words are for, which is how they look.
enum class TextRole {
    /// What a row is called.
    body,
    /// The name of a group of cards.
    heading,
    /// The name of a window, in it.
    title,
    /// Under a row's name: when one would want it, or what it costs. Wraps.
    second,
    /// In the same place: what is wrong, and what to do. Wraps.
    warning,
    /// What is set, beside its control.
    value,
};

/// Words on a screen. The theme outlives it.
class TextLabel : public QLabel {
public:
    TextLabel(const Theme& theme, TextRole role, const QString& text, QWidget* parent = nullptr);

    void setRole(TextRole role);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void applyFont();

    const Theme& theme_;
    TextRole role_;
    bool appliesFont_ = false;
};

} // namespace brindlex
