#pragma once

#include <QImage>

namespace brindlex {

/// The program's icon in this size in pixels: as it was drawn, or else one that was drawn larger,
/// made smaller. Beyond the largest that was drawn it is enlarged.
QImage trayPicture(int size);

} // namespace brindlex
