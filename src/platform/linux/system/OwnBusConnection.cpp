#include "platform/linux/system/OwnBusConnection.h"

#include "platform/linux/bus/BusReachability.h"

#include <QUuid>

namespace brindlex {
namespace {

QDBusConnection connect(const std::string& address, std::chrono::milliseconds longestConnecting)
{
    const auto name = QUuid::createUuid().toString();
    if (!isBusReplying(address, longestConnecting))
        return QDBusConnection(name);
    return QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

} // namespace

OwnBusConnection::OwnBusConnection(
    const std::string& address, std::chrono::milliseconds longestConnecting)
    : connection_(connect(address, longestConnecting))
{
}

OwnBusConnection::~OwnBusConnection()
{
    const auto name = connection_.name();
    connection_ = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

} // namespace brindlex
