#pragma once

#include "platform/linux/appearance/DesktopAppearance.h"
#include "ui/controls/Theme.h"

#include <QFont>

namespace brindlex {

/// How all controls look on a desktop.
Theme::Look lookFor(const DesktopAppearance& appearance);

/// The font of the program on a desktop: that of the desktop in the size that its user reads, else
/// the usual one. What is larger than windows are made for becomes as large as they are made for.
QFont fontFor(const DesktopAppearance& appearance, const QFont& usual);

} // namespace brindlex
