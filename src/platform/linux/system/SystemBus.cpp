#include "platform/linux/system/SystemBus.h"

#include <QUuid>

namespace brindlex {

SystemBus::SystemBus()
    : connection_(
        QDBusConnection::connectToBus(QDBusConnection::SystemBus, QUuid::createUuid().toString()))
{
}

SystemBus::~SystemBus()
{
    const auto name = connection_.name();
    connection_ = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

} // namespace brindlex
