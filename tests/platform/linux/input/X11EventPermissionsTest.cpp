#include "platform/linux/input/X11EventPermissions.h"

#include "platform/linux/input/X11EventTapping.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

TEST(X11EventPermissions, areMissingWithoutAServer)
{
    VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    desktop.endDisplayServer();
    SimulatedClock time;
    SimulatedMainThread mainThread(time);
    SimulatedUserDefaults defaults;
    X11InputStream stream(mainThread);
    X11EventPermissions permissions(stream, defaults);

    EXPECT_EQ(EventPermissionState::ask(permissions), (EventPermissionState{false, false}));
}

TEST(X11EventPermissions, areKeptWhileAConnectionThatWasCutIsMadeAnew)
{
    VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    QtMainThread mainThread;
    SimulatedUserDefaults defaults;
    X11InputStream stream(mainThread);
    X11EventPermissions permissions(stream, defaults);
    X11EventTapping tapping(stream);
    ASSERT_EQ(EventPermissionState::ask(permissions), (EventPermissionState{true, true}));

    desktop.endDisplayServer();

    EXPECT_TRUE(loopUntil([&] { return !stream.session(); }));
    EXPECT_EQ(EventPermissionState::ask(permissions), (EventPermissionState{true, true}));
    EXPECT_NE(tapping.createTap(0, {}, [](const Event&) { return EventVerdict::pass; }), nullptr);
    EXPECT_TRUE(loopThroughout(100ms, [&] { return permissions.isAccessibilityTrusted(); }));
}

TEST(X11EventPermissions, areMissingOnAServerOnWhichNothingCanBePlayed)
{
    const VirtualDesktop desktop(
        {.windowManager = WindowManager::none, .sessionBus = false, .disabledExtension = "XTEST"});
    SimulatedClock time;
    SimulatedMainThread mainThread(time);
    SimulatedUserDefaults defaults;
    X11InputStream stream(mainThread);
    X11EventPermissions permissions(stream, defaults);

    EXPECT_EQ(EventPermissionState::ask(permissions), (EventPermissionState{false, false}));
    EXPECT_EQ(permissions.obstacle(EventPermission::inputMonitoring),
        (PermissionObstacle{PermissionObstacle::Reason::lacking, "XTEST"}));
    permissions.request(EventPermission::inputMonitoring);
    EXPECT_FALSE(permissions.canListenToEvents());
}

TEST(X11EventPermissions, areRefusedByTheUserFirstAndThenByWhatTheServerLacks)
{
    const VirtualDesktop desktop(
        {.windowManager = WindowManager::none, .sessionBus = false, .disabledExtension = "XTEST"});
    SimulatedClock time;
    SimulatedMainThread mainThread(time);
    SimulatedUserDefaults defaults;
    X11InputStream stream(mainThread);
    X11EventPermissions permissions(stream, defaults);
    defaults.set("allowsAccessibility", false);
    ASSERT_EQ(permissions.obstacle(EventPermission::accessibility),
        PermissionObstacle{PermissionObstacle::Reason::refused});

    permissions.request(EventPermission::accessibility);

    EXPECT_EQ(defaults.value("allowsAccessibility"), std::nullopt);
    EXPECT_EQ(permissions.obstacle(EventPermission::accessibility),
        (PermissionObstacle{PermissionObstacle::Reason::lacking, "XTEST"}));
}

TEST(X11EventPermissions, areForbiddenByNothingButTheWordFalse)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    SimulatedClock time;
    SimulatedMainThread mainThread(time);
    SimulatedUserDefaults defaults;
    X11InputStream stream(mainThread);
    X11EventPermissions permissions(stream, defaults);

    for (const auto& value : std::vector{
             PreferenceValue(true), PreferenceValue(std::int64_t{0}), PreferenceValue("false")}) {
        defaults.set("allowsAccessibility", value);
        EXPECT_TRUE(permissions.isAccessibilityTrusted());
    }
    defaults.set("allowsAccessibility", false);
    EXPECT_FALSE(permissions.isAccessibilityTrusted());
}

TEST(X11EventPermissions, tellNothingOfOtherPreferences)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    SimulatedClock time;
    SimulatedMainThread mainThread(time);
    SimulatedUserDefaults defaults;
    X11InputStream stream(mainThread);
    X11EventPermissions permissions(stream, defaults);
    int notifications = 0;
    const auto observation = permissions.observeAccessibilityChanges([&] { ++notifications; });

    defaults.set("mouseConfig", "{}");
    defaults.set("allowsAccessibility", true);
    EXPECT_EQ(notifications, 0);
    defaults.set("allowsInputMonitoring", false);
    EXPECT_EQ(notifications, 1);
}

} // namespace
} // namespace brindlex
