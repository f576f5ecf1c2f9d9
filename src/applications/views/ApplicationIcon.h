#pragma once

#include "applications/AppIdentifier.h"
#include "ui/controls/Theme.h"

#include <QIcon>

namespace brindlex {

/// The application's own icon, from the file that the reference names; a plain glyph where there is
/// none that can be read. The theme outlives it.
QIcon applicationIcon(const Theme& theme, const AppIdentifier& app);

} // namespace brindlex
