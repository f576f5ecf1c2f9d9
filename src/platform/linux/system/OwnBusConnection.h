#pragma once

#include <QDBusConnection>

#include <chrono>
#include <string>

namespace brindlex {

/// A connection of its holder's own to the message bus at an address.
///
/// Where no bus lets this process in within the time nothing starts one, as the library's own
/// search for a bus would: the connection is then not connected, and everything that is sent is
/// lost. Main thread only.
class OwnBusConnection {
public:
    OwnBusConnection(const std::string& address, std::chrono::milliseconds longestConnecting);
    ~OwnBusConnection();
    OwnBusConnection(const OwnBusConnection&) = delete;
    OwnBusConnection& operator=(const OwnBusConnection&) = delete;

    QDBusConnection& get() { return connection_; }
    const QDBusConnection& get() const { return connection_; }

private:
    QDBusConnection connection_;
};

} // namespace brindlex
