#include "desktop/MouseFixture.h"

#include "support/screen/XResources.h"

namespace brindlex {
namespace {

TEST_F(Mouse, leavesAllDevicesAloneWithoutBindings)
{
    desk.start({});
    EventLogWindow window;

    EXPECT_TRUE(receivesWhatIsOfNoUse(window));
    EXPECT_FALSE(desk.isAnyDeviceTaken());
}

TEST_F(Mouse, followsSettingsThatAnotherProcessWrites)
{
    desk.start({});
    EventLogWindow window;

    desk.set(everything());
    EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); })) << desk.program->report();
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, forwardClick));

    desk.set({});
    EXPECT_TRUE(desk.givesDevicesBack()) << desk.program->report();
    window.forget();
    desk.mouse.click(backButton);
    EXPECT_TRUE(receives(window, {"press 8", "release 8"}));
}

TEST_F(Mouse, wantsDragsTwiceAsLongWhereTheDesktopDrawsTwiceAsLarge)
{
    setDotsPerInch(desk.server, 192);
    desk.start(everything());
    EventLogWindow window;

    drag(backButton, 40, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, {"press 8", "release 8"}));

    window.forget();
    drag(backButton, 70, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, forwardClick));
}

TEST_F(Mouse, losesAndRegainsThePermissionOfTheUser)
{
    desk.start(everything());
    EventLogWindow window;

    desk.setPreference("allowsInputMonitoring", false);
    EXPECT_TRUE(
        desk.program->logs("GlobalEventTap: tearing down, permission lost (ax-distributed)"))
        << desk.program->report();
    EXPECT_TRUE(desk.givesDevicesBack());
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, {"press 8", "release 8"}));

    desk.setPreference("allowsInputMonitoring", true);
    EXPECT_TRUE(
        desk.program->logs("GlobalEventTap: rebuilding, permission regained (ax-distributed)"))
        << desk.program->report();
    EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); }));
    window.forget();
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, forwardClick));
}

TEST_F(Mouse, startsOnceTheUserAllowsIt)
{
    desk.setPreference("allowsAccessibility", false);
    desk.start(everything());
    for (const auto name : {"MouseClick", "MouseGesture", "MouseScroll"})
        EXPECT_TRUE(desk.program->logs(std::string(name)
            + ": missing Accessibility or Input Monitoring permission; not starting"));
    EXPECT_FALSE(desk.isAnyDeviceTaken());

    desk.setPreference("allowsAccessibility", nullptr);

    EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); })) << desk.program->report();
    EventLogWindow window;
    drag(backButton, 60, 0);
    desk.mouse.release(backButton);
    EXPECT_TRUE(receives(window, forwardClick));
}

TEST_F(Mouse, worksByDefaultsWhereItsSettingsAreDamaged)
{
    desk.setPreference("mouseConfig", R"({"click":{"enabled":true,"bindings":[{"id":7}]}})");
    desk.program.emplace(desk.desktop);
    ASSERT_TRUE(desk.program->launches()) << desk.program->report();
    EventLogWindow window;

    EXPECT_TRUE(
        desk.program->logs("The preference \"mouseConfig\" cannot be read; the default applies"));
    desk.settle();
    desk.mouse.click(backButton);
    desk.mouse.turnWheel(1);
    EXPECT_TRUE(receives(window, {"press 8", "release 8", "press 5", "release 5"}));
    EXPECT_EQ(desk.program->quit(), (ProcessEnd{0, {}})) << desk.program->report();
}

} // namespace
} // namespace brindlex
