#include "app/AppLifecycleCoordinator.h"

#include "log/LoggedProcess.h"
#include "platform/simulated/SimulatedMouse.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(AppLifecycleCoordinator, showsTheNameOfASourceFor800Milliseconds)
{
    LoggedProcess process;
    process.lifecycle.start();

    process.shared.inputMethodSwitchCoordinator().onSwitch("German");

    EXPECT_EQ(process.desktop.overlayPanel.text(), "German");
    process.desktop.mainThread.advance(0.79);
    EXPECT_FALSE(process.desktop.overlayPanel.isFading());
    process.desktop.mainThread.advance(0.01);
    EXPECT_TRUE(process.desktop.overlayPanel.isFading());
}

TEST(AppLifecycleCoordinator, followsRulesThatAnotherProcessWrites)
{
    LoggedProcess process;
    process.lifecycle.start();
    InputMethodConfig config;
    config.enabled = false;

    process.shared.preferences().write(&UserDefaultPreferenceKeys::inputMethodConfig, config);
    process.desktop.mainThread.runUntilIdle();

    EXPECT_EQ(process.shared.inputMethodConfigStore().config().value(), config);
    EXPECT_EQ(process.shared.inputMethodSwitchCoordinator().state().lifecycle,
        SwitchState::Lifecycle::stopped);
}

TEST(AppLifecycleCoordinator, followsMouseSettingsThatAnotherProcessWrites)
{
    LoggedProcess process;
    process.lifecycle.start();
    auto config = leftGesture();
    config.click.enabled = false;
    config.scroll.invertVertical = true;

    process.shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, config);
    process.desktop.mainThread.runUntilIdle();

    EXPECT_EQ(process.shared.mouseConfigStore().config().value(), config);
    EXPECT_EQ(
        process.desktop.input.tapMasks(), std::vector{mouseScrollEventMask | mouseButtonMaskOf(0)});
    SimulatedMouse mouse(process.desktop.input);
    EXPECT_EQ(mouse.scroll(1), EventVerdict::swallow);
    ASSERT_EQ(process.desktop.input.delivered().size(), 1U);
    EXPECT_EQ(
        process.desktop.input.delivered()[0].value(EventField::scrollWheelEventPointDeltaAxis1),
        -10);
}

TEST(AppLifecycleCoordinator, startsWithDefaultsWhereTheMouseSettingsAreDamaged)
{
    LoggedProcess process;
    const std::string damaged = R"({"value":{"click":{"enabled":true,"bindings":[{}]}}})";
    process.desktop.defaults.set("mouseConfig", damaged);

    process.lifecycle.start();

    EXPECT_EQ(process.log.lines(),
        (std::vector<std::string>{
            "WARN [lifecycle] The preference \"mouseConfig\" cannot be read; the default applies",
            "NOTICE [lifecycle] Brindlex launched",
        }));
    EXPECT_EQ(process.shared.mouseConfigStore().config().value(), MouseConfig{});
    EXPECT_EQ(process.desktop.defaults.value("mouseConfig"), PreferenceValue(damaged));
    EXPECT_EQ(
        process.desktop.input.tapMasks(), std::vector{mouseScrollEventMask | mouseClickEventMask});
}

} // namespace
} // namespace brindlex
