#pragma once

#include <QDBusConnection>
#include <QString>

namespace brindlex {

/// A connection to the session bus that the environment names now; the one that Qt shares stays
/// with the bus that it found first.
class SessionBus {
public:
    SessionBus()
        : bus_(QDBusConnection::connectToBus(
            qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), newName()))
    {
    }
    ~SessionBus() { QDBusConnection::disconnectFromBus(bus_.name()); }
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    const QDBusConnection& get() const { return bus_; }

private:
    static QString newName()
    {
        static int number = 0;
        return QStringLiteral("test-session-%1").arg(++number);
    }

    QDBusConnection bus_;
};

} // namespace brindlex
