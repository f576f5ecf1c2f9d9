#pragma once

#include <QSize>

#include <functional>

class QWidget;

namespace brindlex {

/// A length around words, larger by as much as the font of the program is larger than the one that
/// the screens are designed with, 10 points; never smaller.
int grownWithText(int length);
QSize grownWithText(const QSize& size);

/// Calls the function now, and again whenever the font of the widget or of the program changes,
/// until the end of the widget.
void followTextSize(QWidget& widget, std::function<void()> apply);

} // namespace brindlex
