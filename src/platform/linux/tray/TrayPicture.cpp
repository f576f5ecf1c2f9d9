#include "platform/linux/tray/TrayPicture.h"

#include "platform/linux/tray/IconPictures.h"

#include <algorithm>

namespace brindlex {
namespace {

/// Shares the pixels of the program.
QImage imageOf(const IconPicture& picture)
{
    return {reinterpret_cast<const uchar*>(picture.pixels), picture.size, picture.size,
        QImage::Format_ARGB32};
}

} // namespace

QImage trayPicture(int size)
{
    const auto drawn = iconPictures();
    const auto fits = std::ranges::find_if(
        drawn, [&](const IconPicture& picture) { return picture.size >= size; });
    const auto image = imageOf(fits == drawn.end() ? drawn.back() : *fits);
    return image.width() == size
        ? image
        : image.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace brindlex
