#pragma once

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>

#include <chrono>
#include <functional>

namespace brindlex {

/// Until when a caller is ready to wait.
using DBusDeadline = std::chrono::steady_clock::time_point;

/// The deadline of one who does not wait.
inline constexpr DBusDeadline doNotWait{};

/// Hands over the reply to a call, which may be an error: at once when it comes before the
/// deadline, else from the loop; never, once `context` has gone.
void onReply(const QDBusPendingCall& call, DBusDeadline deadline, QObject* context,
    std::function<void(const QDBusMessage& reply)> handler);

/// Waits for the reply without running the loop; whether it came before the deadline.
bool waitForReply(const QDBusPendingCall& call, DBusDeadline deadline);

} // namespace brindlex
