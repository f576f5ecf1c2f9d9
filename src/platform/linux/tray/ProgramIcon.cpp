#include "platform/linux/tray/ProgramIcon.h"

#include "platform/linux/tray/IconPictures.h"
#include "platform/linux/tray/TrayPicture.h"

#include <QPixmap>

namespace brindlex {

QIcon programIcon()
{
    QIcon icon;
    for (const auto& picture : iconPictures())
        icon.addPixmap(QPixmap::fromImage(trayPicture(picture.size)));
    return icon;
}

} // namespace brindlex
