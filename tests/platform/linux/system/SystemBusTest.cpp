#include "platform/linux/system/SystemBus.h"

#include "support/basics/ScopedEnvironment.h"
#include "support/bus/PrivateBus.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(SystemBus, isTheOneThatTheEnvironmentNames)
{
    const PrivateBus bus;
    ScopedEnvironment environment;
    environment.set("DBUS_SYSTEM_BUS_ADDRESS", bus.address());

    EXPECT_TRUE(SystemBus().connection().isConnected());
}

TEST(SystemBus, isNotConnectedWhereThereIsNone)
{
    ScopedEnvironment environment;
    environment.set("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus");

    EXPECT_FALSE(SystemBus().connection().isConnected());
}

} // namespace
} // namespace brindlex
