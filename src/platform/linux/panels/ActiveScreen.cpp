#include "platform/linux/panels/ActiveScreen.h"

#include "platform/linux/windows/X11WindowReading.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <optional>

namespace brindlex {
namespace {

/// The middle of a window in pixels of the root window.
std::optional<QPoint> middleOf(X11Connection& connection, xcb_window_t window)
{
    const auto geometry = xcb_get_geometry(connection.get(), window);
    const auto position
        = xcb_translate_coordinates(connection.get(), window, connection.root(), 0, 0);
    const X11Message<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(connection.get(), geometry, nullptr));
    const X11Message<xcb_translate_coordinates_reply_t> corner(
        xcb_translate_coordinates_reply(connection.get(), position, nullptr));
    if (!size || !corner)
        return {};
    return QPoint(corner->dst_x + size->width / 2, corner->dst_y + size->height / 2);
}

/// The screen with a point in pixels of the root window. A screen's corner is given in those
/// pixels, its size in logical ones.
QScreen* screenWith(const QPoint& pixel)
{
    for (auto* screen : QGuiApplication::screens()) {
        const auto logical = screen->geometry();
        const auto size = QSizeF(logical.size()) * screen->devicePixelRatio();
        if (QRect(logical.topLeft(), size.toSize()).contains(pixel))
            return screen;
    }
    return nullptr;
}

} // namespace

QScreen* activeScreen(X11Connection& connection)
{
    if (const auto window = activeWindow(connection))
        if (const auto middle = middleOf(connection, window))
            if (auto* screen = screenWith(*middle))
                return screen;
    if (auto* screen = QGuiApplication::screenAt(QCursor::pos()))
        return screen;
    return QGuiApplication::primaryScreen();
}

} // namespace brindlex
