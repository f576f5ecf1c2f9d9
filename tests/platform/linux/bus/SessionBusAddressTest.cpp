#include "platform/linux/bus/SessionBusAddress.h"

#include "support/basics/ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(SessionBusAddress, isTheNamedOneOrTheUsualPlace)
{
    ScopedEnvironment environment;
    environment.set("XDG_RUNTIME_DIR", "/run/user/7");
    environment.set("DBUS_SESSION_BUS_ADDRESS", "unix:abstract=x");
    EXPECT_EQ(sessionBusAddress(), "unix:abstract=x");
    environment.set("DBUS_SESSION_BUS_ADDRESS", "");
    EXPECT_EQ(sessionBusAddress(), "unix:path=/run/user/7/bus");
    environment.set("DBUS_SESSION_BUS_ADDRESS", std::nullopt);
    EXPECT_EQ(sessionBusAddress(), "unix:path=/run/user/7/bus");
    environment.set("XDG_RUNTIME_DIR", std::nullopt);
    EXPECT_EQ(sessionBusAddress(), "");
}

} // namespace
} // namespace brindlex
