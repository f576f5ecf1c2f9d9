#pragma once

#include "platform/linux/appearance/DesktopAppearance.h"
#include "ui/controls/Theme.h"

#include <QFont>
#include <QSize>

namespace brindlex {

/// How all controls look on a desktop.
Theme::Look lookFor(const DesktopAppearance& appearance);

/// The font of the program on a desktop: that of the desktop in the size that its user reads, else
/// the usual one. What is larger than windows are made for becomes as large as they are made for.
QFont fontFor(const DesktopAppearance& appearance, const QFont& usual);

/// How large a window opens: larger where words are, as far as the screen has room for it.
QSize openingSize(const QSize& designed, const QSize& screen);

} // namespace brindlex
