#include "app/AppLifecycleCoordinator.h"

#include "app/SimulatedProgram.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::string us = "xkb:us::eng";
const std::string german = "xkb:de::deu";

/// A program that has not been started, on a computer with two layouts and a rule for the editor.
struct AppLifecycleCoordinatorInputSwitching : testing::Test, SimulatedProgram {
    AppLifecycleCoordinatorInputSwitching()
    {
        computer.inputSources.install(SimulatedInputSources::keyboard(us, "English (US)"));
        computer.inputSources.install(SimulatedInputSources::keyboard(german, "German"));
        InputMethodConfig config;
        config.rules = {{Uuid::random(), {"editor", "Editor", {}}, german}};
        shared.preferences().write(&UserDefaultPreferenceKeys::inputMethodConfig, config);
    }
};

TEST_F(AppLifecycleCoordinatorInputSwitching, beginsWithAStartThatShowsItsSwitch)
{
    // Made and stopped before, so that nothing but the start can be what switches.
    auto& switching = shared.inputMethod().switchCoordinator();
    switching.dispatch(SwitchEvent::Stop{});
    computer.applications.bringToFront({ProcessIdentity{1}, "editor", {}, "Editor"});
    ASSERT_EQ(switching.state().lifecycle, SwitchState::Lifecycle::stopped);

    lifecycle.start();

    EXPECT_EQ(switching.state().lifecycle, SwitchState::Lifecycle::observing);
    EXPECT_EQ(computer.inputSources.attempts(), std::vector<std::string>{german});
    EXPECT_EQ(computer.overlayPanel.calls(), std::vector<std::string>{"show German"});
}

TEST_F(AppLifecycleCoordinatorInputSwitching, takesTheLabelOfASwitchBackThatDoesNotHold)
{
    lifecycle.start();
    computer.applications.bringToFront({ProcessIdentity{1}, "editor", {}, "Editor"});
    computer.mainThread.runUntilIdle();
    for (int time = 0; time < 2; ++time) {
        computer.inputSources.undoWith(us);
        computer.mainThread.runUntilIdle();
    }

    EXPECT_EQ(computer.overlayPanel.calls(),
        (std::vector<std::string>{"show German", "show German", "fadeOut"}));
}

TEST_F(AppLifecycleCoordinatorInputSwitching, switchesInSilenceWhereTheFirstLookFindsTheRule)
{
    computer.applications.bringToFront({ProcessIdentity{1}, "editor", {}, "Editor"});

    lifecycle.start();

    EXPECT_EQ(computer.inputSources.attempts(), std::vector<std::string>{german});
    EXPECT_EQ(computer.overlayPanel.calls(), std::vector<std::string>{})
        << "the switch came with the construction, before anybody asked to be notified";
}

TEST_F(AppLifecycleCoordinatorInputSwitching, saysThatASecondLaunchAskedForTheWindow)
{
    lifecycle.start();
    log.takeLines();

    lifecycle.showMainWindowRequested();

    EXPECT_EQ(log.takeLines(),
        std::vector<std::string>{"INFO [lifecycle] Asked to show the main window"});
}

} // namespace
} // namespace brindlex
