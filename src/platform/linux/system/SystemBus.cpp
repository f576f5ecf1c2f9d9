#include "platform/linux/system/SystemBus.h"

#include "platform/linux/bus/BusReachability.h"

#include <QUuid>

#include <chrono>
#include <cstdlib>
#include <string>

namespace brindlex {
namespace {

/// What the system says of the session is a help; the start does not wait for it any longer.
constexpr auto longestConnecting = std::chrono::seconds(1);

std::string systemBusAddress()
{
    const char* const named = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    return named && *named != '\0' ? named : "unix:path=/run/dbus/system_bus_socket";
}

QDBusConnection connect(const std::string& address)
{
    const auto name = QUuid::createUuid().toString();
    if (!isBusReplying(address, longestConnecting))
        return QDBusConnection(name);
    return QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

} // namespace

SystemBus::SystemBus() : connection_(connect(systemBusAddress())) { }

SystemBus::~SystemBus()
{
    const auto name = connection_.name();
    connection_ = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

} // namespace brindlex
