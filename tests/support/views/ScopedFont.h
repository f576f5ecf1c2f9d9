#pragma once

#include "ui/controls/Theme.h"

#include <QApplication>

namespace brindlex {

/// Words larger than usual in the whole program, as long as it exists.
class ScopedFont {
public:
    explicit ScopedFont(double scale) { QApplication::setFont(scaledFont(usual_, scale)); }
    ~ScopedFont() { QApplication::setFont(usual_); }
    ScopedFont(const ScopedFont&) = delete;
    ScopedFont& operator=(const ScopedFont&) = delete;

private:
    const QFont usual_ = QApplication::font();
};

} // namespace brindlex
