#include "platform/linux/system/SessionBus.h"

#include <QFileInfo>
#include <QUuid>

namespace brindlex {
namespace {

constexpr int longestWaitInMilliseconds = 500;

/// Where the bus is. The library's own search is avoided, as it starts a bus where there is none.
QString address()
{
    auto named = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!named.isEmpty())
        return named;
    const auto socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    return QFileInfo::exists(socket) ? QStringLiteral("unix:path=") + socket : QString();
}

QDBusConnection connect(const QString& address)
{
    const auto name = QUuid::createUuid().toString();
    if (address.isEmpty() || address.startsWith(QStringLiteral("autolaunch:")))
        return QDBusConnection(name);
    return QDBusConnection::connectToBus(address, name);
}

} // namespace

SessionBus::SessionBus() : connection_(connect(address())) { }

SessionBus::SessionBus(const std::string& address)
    : connection_(connect(QString::fromStdString(address)))
{
}

SessionBus::~SessionBus()
{
    const auto name = connection_.name();
    connection_ = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

std::optional<QDBusMessage> SessionBus::ask(const QString& member, const QVariantList& arguments)
{
    if (!isConnected())
        return {};
    auto question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), member);
    question.setArguments(arguments);
    question.setAutoStartService(false);
    auto reply = connection_.call(question, QDBus::Block, longestWaitInMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {};
    return reply;
}

} // namespace brindlex
