#pragma once

#include <QDBusConnection>

namespace brindlex {

/// The message bus of the computer, seen by a connection of its own to it.
///
/// Where there is none the connection is not connected, and everything that is sent is lost. Main
/// thread only.
class SystemBus {
public:
    SystemBus();
    ~SystemBus();
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;

    const QDBusConnection& connection() const { return connection_; }

private:
    QDBusConnection connection_;
};

} // namespace brindlex
