#include "platform/linux/bus/SessionBusAddress.h"

#include <cstdlib>

namespace brindlex {
namespace {

std::string variable(const char* name)
{
    const auto* const value = std::getenv(name);
    return value ? value : "";
}

} // namespace

std::string sessionBusAddress()
{
    if (auto named = variable("DBUS_SESSION_BUS_ADDRESS"); !named.empty())
        return named;
    const auto folder = variable("XDG_RUNTIME_DIR");
    return folder.empty() ? "" : "unix:path=" + folder + "/bus";
}

} // namespace brindlex
