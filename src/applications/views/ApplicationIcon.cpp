#include "applications/views/ApplicationIcon.h"

#include "ui/controls/Glyph.h"

#include <QPixmap>

namespace brindlex {

QIcon applicationIcon(const Theme& theme, const AppIdentifier& app)
{
    if (app.iconPath) {
        const QPixmap picture(QString::fromStdString(*app.iconPath));
        if (!picture.isNull())
            return QIcon(picture);
    }
    return glyphIcon(theme, Glyph::application, &ThemeTokens::subdued);
}

} // namespace brindlex
