#include "platform/linux/system/SessionBus.h"

#include "platform/linux/bus/BusReachability.h"
#include "platform/linux/bus/SessionBusAddress.h"

#include <QUuid>

namespace brindlex {
namespace {

constexpr int longestWaitInMilliseconds = 500;

/// At the beginning of a session a bus has much to do; one that needs longer has been stopped.
constexpr auto longestConnecting = std::chrono::seconds(5);

/// The library's own search for the bus is avoided, as it starts one where there is none.
QDBusConnection connect(const std::string& address)
{
    const auto name = QUuid::createUuid().toString();
    if (!isBusReplying(address, longestConnecting))
        return QDBusConnection(name);
    return QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

} // namespace

SessionBus::SessionBus() : SessionBus(sessionBusAddress()) { }

SessionBus::SessionBus(const std::string& address) : connection_(connect(address)) { }

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
