#include "platform/linux/inputsources/IBusConnection.h"

#include "platform/linux/inputsources/IBusAddress.h"
#include "platform/linux/inputsources/InputSourceBackend.h"

#include <QDBusError>
#include <QDBusMessage>

#include <utility>

namespace brindlex {
namespace {

constexpr IBusConnection::Service bus{
    "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"};

QString newConnectionName()
{
    static int number = 0;
    return QStringLiteral("brindlex-ibus-%1").arg(++number);
}

} // namespace

IBusConnection::IBusConnection() : name_(newConnectionName()), bus_(QString())
{
    const auto address = ibusAddress();
    if (!address) {
        problem_ = "its address is not known";
        return;
    }
    // As a peer, since connecting as a client waits for the daemon without a limit.
    bus_ = QDBusConnection::connectToPeer(QString::fromStdString(address->address), name_);
    if (!bus_.isConnected())
        problem_ = bus_.lastError().message().toStdString();
}

IBusConnection::~IBusConnection()
{
    signals_.clear();
    QDBusConnection::disconnectFromPeer(name_);
}

void IBusConnection::greet(
    DBusDeadline deadline, std::function<void(const QDBusMessage& reply)> ready)
{
    onReply(call(bus, "Hello", {}), deadline, &context_, std::move(ready));
}

QDBusPendingCall IBusConnection::call(
    const Service& service, const char* member, const QVariantList& arguments) const
{
    auto message = QDBusMessage::createMethodCall(QLatin1String(service.name),
        QLatin1String(service.path), QLatin1String(service.interface), QLatin1String(member));
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return bus_.asyncCall(message, callLimitMilliseconds);
}

void IBusConnection::follow(const Service& service, const char* member, DBusSignal::Handler handler)
{
    signals_.push_back(std::make_unique<DBusSignal>(bus_, QLatin1String(service.path),
        QLatin1String(service.interface), QLatin1String(member), QStringList(),
        std::move(handler)));
    // A peer does not subscribe to signals by itself.
    call(bus, "AddMatch",
        {QStringLiteral("type='signal',path='%1',interface='%2',member='%3'")
                .arg(QLatin1String(service.path), QLatin1String(service.interface),
                    QLatin1String(member))});
}

void IBusConnection::whenEnded(std::function<void()> handler)
{
    signals_.push_back(
        std::make_unique<DBusSignal>(bus_, QStringLiteral("/org/freedesktop/DBus/Local"),
            QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
            QStringList(), [handler = std::move(handler)](const QDBusMessage&) { handler(); }));
}

} // namespace brindlex
