#pragma once

#include "platform/linux/system/OwnBusConnection.h"

namespace brindlex {

/// The message bus of the computer, seen by a connection of its own to it.
///
/// Where there is none the connection is not connected, and everything that is sent is lost. Main
/// thread only.
class SystemBus {
public:
    SystemBus();

    const QDBusConnection& connection() const { return connection_.get(); }

private:
    OwnBusConnection connection_;
};

} // namespace brindlex
