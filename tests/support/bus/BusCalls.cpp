#include "support/bus/BusCalls.h"

#include "foundation/FatalError.h"

#include <cstdlib>
#include <systemd/sd-bus.h>

namespace brindlex {

BusCalls::BusCalls(const std::string& operation) : operation_(operation)
{
    const auto match = "type='method_call',member='" + operation + "'";
    const bool isMonitor = sd_bus_new(&bus_) >= 0
        && sd_bus_set_address(bus_, std::getenv("DBUS_SESSION_BUS_ADDRESS")) >= 0
        && sd_bus_set_bus_client(bus_, true) >= 0 && sd_bus_set_monitor(bus_, true) >= 0
        && sd_bus_start(bus_) >= 0
        && sd_bus_call_method(bus_, "org.freedesktop.DBus", "/org/freedesktop/DBus",
               "org.freedesktop.DBus.Monitoring", "BecomeMonitor", nullptr, nullptr, "asu", 1,
               match.c_str(), 0U)
            >= 0;
    if (!isMonitor)
        fatalError("The session bus cannot be watched");
}

BusCalls::~BusCalls() { sd_bus_flush_close_unref(bus_); }

int BusCalls::taken()
{
    int count = 0;
    sd_bus_message* message = nullptr;
    while (sd_bus_process(bus_, &message) > 0) {
        if (message && sd_bus_message_is_method_call(message, nullptr, operation_.c_str()) > 0)
            ++count;
        message = sd_bus_message_unref(message);
    }
    return count;
}

} // namespace brindlex
