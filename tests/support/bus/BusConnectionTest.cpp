#include "support/bus/BusConnection.h"

#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(BusConnection, asksTheBusAboutNames)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    const BusConnection bus;

    EXPECT_TRUE(bus.isOpen());
    EXPECT_TRUE(bus.hasOwner("org.freedesktop.DBus"));
    EXPECT_FALSE(bus.hasOwner("com.example.Nobody"));
    EXPECT_EQ(bus.processOf("com.example.Nobody"), std::nullopt);
    EXPECT_FALSE(bus.call("com.example.Nobody", "/", "com.example", "Nothing"));
}

TEST(BusConnection, isNotOpenWithoutABus)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    const BusConnection bus;

    EXPECT_FALSE(bus.isOpen());
    EXPECT_FALSE(bus.hasOwner("org.freedesktop.DBus"));
}

TEST(BusConnection, endsWithItsBus)
{
    VirtualDesktop desktop({.windowManager = WindowManager::none});
    const BusConnection bus;

    desktop.endSessionBus();

    EXPECT_FALSE(bus.hasOwner("org.freedesktop.DBus"));
}

} // namespace
} // namespace brindlex
