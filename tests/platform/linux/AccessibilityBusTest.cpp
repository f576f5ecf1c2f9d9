#include "platform/linux/AccessibilityBus.h"

#include "support/BusConnection.h"
#include "support/Eventually.h"
#include "support/FakeBrowser.h"
#include "support/RecordedLog.h"
#include "support/VirtualDesktop.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

const std::string absent
    = "INFO [input-method] No accessibility bus: the pages of browsers are unknown";

/// How many programs offer themselves; nothing without a bus.
std::optional<std::size_t> programs(AccessibilityBus& bus)
{
    if (!bus.begin())
        return {};
    const auto applications = bus.applications();
    if (!applications)
        return {};
    return applications->size();
}

TEST(AccessibilityBus, knowsTheProgramsAndTheirProcesses)
{
    const VirtualDesktop desktop({.windowManager = false, .accessibility = true});
    const FakeBrowser browser;
    AccessibilityBus bus;
    ASSERT_TRUE(bus.begin());

    const auto applications = bus.applications();
    ASSERT_TRUE(applications);
    EXPECT_TRUE(std::ranges::any_of(*applications, [&](const AccessibleObject& application) {
        const auto process = bus.processIdentifier(application.service);
        return process && *process == browser.process();
    }));
}

TEST(AccessibilityBus, isAbsentWhereItIsOffWhichIsLoggedOnce)
{
    const VirtualDesktop desktop({.windowManager = false});
    const RecordedLog log;
    AccessibilityBus bus;

    for (int attempt = 0; attempt < 3; ++attempt)
        EXPECT_FALSE(bus.begin());
    EXPECT_EQ(log.lines(), Lines{absent});
}

TEST(AccessibilityBus, startsNoService)
{
    const VirtualDesktop desktop({.windowManager = false});
    AccessibilityBus bus;
    bus.begin();

    EXPECT_FALSE(BusConnection().hasOwner("org.a11y.Bus"));
}

TEST(AccessibilityBus, isAbsentWithoutASessionBus)
{
    const VirtualDesktop desktop({.windowManager = false, .sessionBus = false});
    const RecordedLog log;
    AccessibilityBus bus;

    EXPECT_FALSE(bus.begin());
    EXPECT_EQ(log.lines(), Lines{absent});
}

TEST(AccessibilityBus, connectsOnceItIsThere)
{
    const VirtualDesktop desktop({.windowManager = false});
    AccessibilityBus bus;
    ASSERT_FALSE(bus.begin());
    BusConnection().call(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames");
    ASSERT_EQ(run({.command = {"dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus",
                       "/org/a11y/bus", "org.a11y.Bus.GetAddress"}},
                  usualDeadline),
        (ProcessEnd{0, {}}));

    EXPECT_TRUE(eventually([&] { return bus.begin(); }));
}

TEST(AccessibilityBus, connectsAgainAfterTheBusWasRestarted)
{
    const VirtualDesktop desktop({.windowManager = false, .accessibility = true});
    AccessibilityBus bus;
    {
        const FakeBrowser browser;
        ASSERT_EQ(programs(bus), 1U);
    }
    const auto launcher = BusConnection().processOf("org.a11y.Bus");
    ASSERT_TRUE(launcher);
    kill(*launcher, SIGKILL);
    ASSERT_TRUE(eventually([&] { return !BusConnection().hasOwner("org.a11y.Bus"); }));
    const FakeBrowser browser;

    EXPECT_TRUE(eventually([&] { return programs(bus) == 1U; }));
}

} // namespace
} // namespace brindlex
