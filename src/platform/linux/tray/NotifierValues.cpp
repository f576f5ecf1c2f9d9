#include "platform/linux/tray/NotifierValues.h"

#include <QDBusMetaType>
#include <QtEndian>

namespace brindlex {

NotifierPicture notifierPicture(const IconPicture& picture)
{
    const auto pixels = static_cast<qsizetype>(picture.size) * picture.size;
    QByteArray bytes(pixels * qsizetype{sizeof(quint32)}, Qt::Uninitialized);
    qToBigEndian<quint32>(picture.pixels, pixels, bytes.data());
    return {picture.size, picture.size, bytes};
}

void registerNotifierValues()
{
    qDBusRegisterMetaType<NotifierPicture>();
    qDBusRegisterMetaType<NotifierPictures>();
    qDBusRegisterMetaType<NotifierToolTip>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPicture& picture)
{
    argument.beginStructure();
    argument << picture.width << picture.height << picture.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPicture& picture)
{
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.pictures << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.pictures >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

} // namespace brindlex
