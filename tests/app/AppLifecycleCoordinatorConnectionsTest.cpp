#include "app/AppLifecycleCoordinator.h"

#include "app/SimulatedProgram.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(AppLifecycleCoordinator, showsTheNameOfASourceFor800Milliseconds)
{
    SimulatedProgram process;
    process.lifecycle.start();

    process.shared.inputMethod().switchCoordinator().onSwitch("German");

    EXPECT_EQ(process.computer.overlayPanel.text(), "German");
    process.computer.mainThread.advance(0.79);
    EXPECT_FALSE(process.computer.overlayPanel.isFading());
    process.computer.mainThread.advance(0.01);
    EXPECT_TRUE(process.computer.overlayPanel.isFading());
}

TEST(AppLifecycleCoordinator, followsRulesThatAnotherProcessWrites)
{
    SimulatedProgram process;
    process.lifecycle.start();
    InputMethodConfig config;
    config.enabled = false;

    process.shared.preferences().write(&UserDefaultPreferenceKeys::inputMethodConfig, config);
    process.computer.mainThread.runUntilIdle();

    EXPECT_EQ(process.shared.inputMethod().configStore().config().value(), config);
    EXPECT_EQ(process.shared.inputMethod().switchCoordinator().state().lifecycle,
        SwitchState::Lifecycle::stopped);
}

TEST(AppLifecycleCoordinator, followsMouseSettingsThatAnotherProcessWrites)
{
    SimulatedProgram process;
    process.lifecycle.start();
    auto config = leftGesture();
    config.click.enabled = false;
    config.scroll.invertVertical = true;

    process.shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, config);
    process.computer.mainThread.runUntilIdle();

    EXPECT_EQ(process.shared.mouse().configStore().config().value(), config);
    EXPECT_EQ(process.computer.input.tapMasks(),
        std::vector{mouseScrollEventMask | mouseButtonMaskOf(0) | eventMask(EventType::keyDown)});
    EXPECT_EQ(process.computer.mouse.scroll(1), EventVerdict::swallow);
    ASSERT_EQ(process.computer.input.delivered().size(), 1U);
    EXPECT_EQ(
        process.computer.input.delivered()[0].value(EventField::scrollWheelEventPointDeltaAxis1),
        -10);
}

TEST(AppLifecycleCoordinator, startsWithDefaultsWhereTheMouseSettingsAreDamaged)
{
    SimulatedProgram process;
    const std::string damaged = R"({"value":{"click":{"enabled":true,"bindings":[{}]}}})";
    process.computer.defaults.set("mouseConfig", damaged);

    process.lifecycle.start();

    EXPECT_EQ(process.log.lines(),
        (std::vector<std::string>{
            "WARN [lifecycle] The preference \"mouseConfig\" cannot be read; the default applies",
            "INFO [clipboard] ClipboardHistoryMonitor: started",
            "NOTICE [lifecycle] Brindlex launched",
        }));
    EXPECT_EQ(process.shared.mouse().configStore().config().value(), MouseConfig{});
    EXPECT_EQ(process.computer.defaults.value("mouseConfig"), PreferenceValue(damaged));
    EXPECT_EQ(process.computer.input.tapMasks(),
        std::vector{mouseScrollEventMask | mouseClickEventMask | eventMask(EventType::keyDown)});
}

} // namespace
} // namespace brindlex
