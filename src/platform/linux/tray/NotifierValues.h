#pragma once

#include "platform/linux/tray/IconPictures.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QString>

namespace brindlex {

/// A picture as the StatusNotifierItem interface has it: `(iiay)`, each pixel as the bytes of
/// alpha, red, green and blue.
struct NotifierPicture {
    int width = 0;
    int height = 0;
    QByteArray bytes{};
};
using NotifierPictures = QList<NotifierPicture>;

/// What is shown beside the pointer: `(sa(iiay)ss)`.
struct NotifierToolTip {
    QString iconName{};
    NotifierPictures pictures{};
    QString title{};
    QString text{};
};

/// The picture in the form of the interface.
NotifierPicture notifierPicture(const IconPicture& picture);

/// Makes these types known to the D-Bus library; may be repeated.
void registerNotifierValues();

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPicture& picture);
QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip);

} // namespace brindlex

Q_DECLARE_METATYPE(brindlex::NotifierPicture)
Q_DECLARE_METATYPE(brindlex::NotifierToolTip)
