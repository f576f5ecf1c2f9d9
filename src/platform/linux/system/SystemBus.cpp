#include "platform/linux/system/SystemBus.h"

#include <chrono>
#include <cstdlib>
#include <string>

namespace brindlex {
namespace {

/// What the system says of the session is a help; the start does not wait for it any longer.
constexpr std::chrono::seconds longestWaitForSystemBus{1};

std::string systemBusAddress()
{
    const char* const named = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    return named && *named != '\0' ? named : "unix:path=/run/dbus/system_bus_socket";
}

} // namespace

SystemBus::SystemBus() : connection_(systemBusAddress(), longestWaitForSystemBus) { }

} // namespace brindlex
