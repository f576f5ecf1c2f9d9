#include "platform/linux/panels/QtScreenReading.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace brindlex {
namespace {

Rect rectOf(const QRect& area)
{
    return {{static_cast<double>(area.x()), static_cast<double>(area.y())},
        {static_cast<double>(area.width()), static_cast<double>(area.height())}};
}

} // namespace

/// The library names the primary screen first.
ScreenLayout QtScreenReading::layout() const
{
    ScreenLayout layout;
    for (const auto* const screen : QGuiApplication::screens())
        layout.screens.push_back({rectOf(screen->geometry()), rectOf(screen->availableGeometry())});
    const auto pointer = QCursor::pos();
    layout.pointer = {static_cast<double>(pointer.x()), static_cast<double>(pointer.y())};
    return layout;
}

} // namespace brindlex
