#pragma once

#include "platform/linux/system/OwnBusConnection.h"

#include <QDBusMessage>

#include <optional>
#include <string>

namespace brindlex {

/// The message bus of the user's session, seen by one connection to it.
///
/// Where the session has none, or one that has not let this process in within five seconds, nothing
/// starts one: the connection is then not connected, and everything that is sent is lost. Names are
/// never started by a message. Main thread only.
class SessionBus {
public:
    /// A connection of its own to the bus that the environment names, or else to the one at the
    /// usual place below XDG_RUNTIME_DIR.
    SessionBus();
    /// A connection of its own to the bus at the address.
    explicit SessionBus(const std::string& address);

    QDBusConnection& connection() { return connection_.get(); }
    bool isConnected() const { return connection_.get().isConnected(); }

    /// Asks the bus itself; nothing when it does not reply within half a second.
    std::optional<QDBusMessage> ask(const QString& member, const QVariantList& arguments = {});

    /// Waits until the bus has taken all that was sent before, no longer than half a second.
    void flush() { ask(QStringLiteral("GetId")); }

private:
    OwnBusConnection connection_;
};

} // namespace brindlex
