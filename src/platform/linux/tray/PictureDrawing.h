#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QImage>

namespace brindlex {

/// Draws the image into the middle of a window of the given size, over its background. Where the X
/// server has no Render extension the window shows its background alone.
void drawOverBackground(X11Connection& connection, xcb_window_t window, xcb_visualid_t visual,
    QSize size, const QImage& image);

} // namespace brindlex
