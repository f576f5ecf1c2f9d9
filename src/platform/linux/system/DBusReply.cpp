#include "platform/linux/system/DBusReply.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <thread>
#include <utility>

namespace brindlex {
namespace {

/// The reply arrives on a thread of Qt's; this is how often it is looked for.
constexpr std::chrono::microseconds lookAgain{50};

} // namespace

void onReply(const QDBusPendingCall& call, DBusDeadline deadline, QObject* context,
    std::function<void(const QDBusMessage& reply)> handler)
{
    if (waitForReply(call, deadline)) {
        handler(call.reply());
        return;
    }
    auto* watcher = new QDBusPendingCallWatcher(call, context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
        [handler = std::move(handler)](QDBusPendingCallWatcher* finished) {
            const auto reply = finished->reply();
            finished->deleteLater();
            handler(reply);
        });
}

bool waitForReply(const QDBusPendingCall& call, DBusDeadline deadline)
{
    while (!call.isFinished()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(lookAgain);
    }
    return true;
}

} // namespace brindlex
