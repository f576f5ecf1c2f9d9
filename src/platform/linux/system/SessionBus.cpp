#include "platform/linux/system/SessionBus.h"

#include "platform/linux/bus/SessionBusAddress.h"

namespace brindlex {
namespace {

constexpr int longestWaitInMilliseconds = 500;

/// At the beginning of a session a bus has much to do; one that needs longer has been stopped.
constexpr std::chrono::seconds longestWaitForSessionBus{5};

} // namespace

SessionBus::SessionBus() : SessionBus(sessionBusAddress()) { }

SessionBus::SessionBus(const std::string& address) : connection_(address, longestWaitForSessionBus)
{
}

std::optional<QDBusMessage> SessionBus::ask(const QString& member, const QVariantList& arguments)
{
    if (!isConnected())
        return {};
    auto question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), member);
    question.setArguments(arguments);
    question.setAutoStartService(false);
    auto reply = connection_.get().call(question, QDBus::Block, longestWaitInMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {};
    return reply;
}

} // namespace brindlex
