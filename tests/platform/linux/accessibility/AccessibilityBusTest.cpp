#include "platform/linux/accessibility/AccessibilityBus.h"

#include "support/basics/Eventually.h"
#include "support/basics/RecordedLog.h"
#include "support/browsers/FakeBrowser.h"
#include "support/bus/BusConnection.h"
#include "support/screen/VirtualDesktop.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Time enough on any machine.
constexpr AccessibilityLimits patientLimits{std::chrono::seconds(20), std::chrono::minutes(1)};

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
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .accessibility = true});
    const FakeBrowser browser;
    AccessibilityBus bus(patientLimits);
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
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    const RecordedLog log;
    AccessibilityBus bus(patientLimits);

    for (int attempt = 0; attempt < 3; ++attempt)
        EXPECT_FALSE(bus.begin());
    EXPECT_EQ(log.lines(), Lines{absent});
}

TEST(AccessibilityBus, startsNoService)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    AccessibilityBus bus(patientLimits);
    bus.begin();

    EXPECT_FALSE(BusConnection().hasOwner("org.a11y.Bus"));
}

TEST(AccessibilityBus, isAbsentWithoutASessionBus)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    const RecordedLog log;
    AccessibilityBus bus(patientLimits);

    EXPECT_FALSE(bus.begin());
    EXPECT_EQ(log.lines(), Lines{absent});
}

TEST(AccessibilityBus, connectsOnceItIsThere)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    AccessibilityBus bus(patientLimits);
    ASSERT_FALSE(bus.begin());
    ASSERT_EQ(run({.command = {"dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus",
                       "/org/a11y/bus", "org.a11y.Bus.GetAddress"}},
                  usualDeadline),
        (ProcessEnd{0, {}}));

    EXPECT_TRUE(eventually([&] { return bus.begin(); }));
}

TEST(AccessibilityBus, saysOnceThatProgramsOfferNothingWhileItIsOff)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    ASSERT_EQ(run({.command = {"dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus",
                       "/org/a11y/bus", "org.a11y.Bus.GetAddress"}},
                  usualDeadline),
        (ProcessEnd{0, {}}));
    const RecordedLog log;
    AccessibilityBus bus(patientLimits);

    EXPECT_TRUE(eventually([&] { return bus.begin(); }));
    EXPECT_TRUE(bus.begin());

    const auto lines = log.lines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(),
                  "INFO [input-method] Accessibility is off: the pages of browsers started "
                  "meanwhile are unknown; it is switched on by \"gsettings set "
                  "org.gnome.desktop.interface toolkit-accessibility true\", before they are "
                  "started"),
        1)
        << testing::PrintToString(lines);
}

TEST(AccessibilityBus, connectsAgainAfterTheBusWasRestarted)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .accessibility = true});
    AccessibilityBus bus(patientLimits);
    {
        const FakeBrowser browser;
        ASSERT_EQ(programs(bus), 1U);
    }
    const BusConnection session;
    const auto address
        = session.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress").text();
    const auto launcher = session.processOf("org.a11y.Bus");
    const auto daemon = BusConnection(address).processOf("org.freedesktop.DBus");
    ASSERT_TRUE(launcher);
    ASSERT_TRUE(daemon);
    kill(*launcher, SIGKILL);
    kill(*daemon, SIGKILL);
    ASSERT_TRUE(eventually([&] { return !session.hasOwner("org.a11y.Bus") && !programs(bus); }));
    const FakeBrowser browser;

    EXPECT_TRUE(eventually([&] { return programs(bus) == 1U; }));
}

} // namespace
} // namespace brindlex
