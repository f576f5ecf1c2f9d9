#include "app/AppLifecycleCoordinator.h"

#include "app/SimulatedProgram.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::vector<std::string> wholeStart{
    "list com.brindlex.Brindlex",
    "container",
    "container",
    "container",
    "prune",
    "set selectedMainWindowTab",
    "set launchAtLogin",
    "set screenshotSaveDirectoryPath",
    "set screenshotHotkey",
    "set baiduOCRAPIToken",
    "set languagePreference",
    "set inputMethodConfig",
    "set smartInputMethodConfig",
    "set mouseConfig",
    "set clipboardHistoryEnabled",
    "set clipboardAutoPaste",
    "set clipboardMaxItems",
    "set clipboardHotkey",
    "set shouldRestoreFocusAfterLanguageRelaunch",
    "set lastRunAppVersion",
    "observe com.brindlex.Brindlex.showMainWindow com.brindlex.Brindlex",
    "observe windows that open",
    "observe windows that close",
    "observe becoming active",
    "observe resigning active",
    "observe windows that close",
    "policy accessory",
    "observe becoming active",
    // Each event of the switching writes the learning record twice: both settings, and the start.
    "set smartInputMethodConfig",
    "set smartInputMethodConfig",
    "observe activations",
    "observe selection",
    "observe enabled sources",
    "set smartInputMethodConfig",
    "set smartInputMethodConfig",
    "set smartInputMethodConfig",
    "set smartInputMethodConfig",
    "observe permissions",
    "observe becoming active",
    "tap 0x6000000",
    "tap on",
    "tap off",
    "tap ends",
    "tap 0x6400000",
    "tap on",
    "observe activations",
    "log INFO [clipboard] ClipboardHistoryMonitor: started",
    "tap off",
    "tap ends",
    "tap 0x6400400",
    "tap on",
    "observe preferences",
    "log NOTICE [lifecycle] Brindlex launched",
};

TEST(AppLifecycleCoordinator, startsEverythingInItsOrder)
{
    const TemporaryFolder container;
    SimulatedProgram process;
    process.computer.container.setFolder(container.path());
    process.shared.preferences().write(&UserDefaultPreferenceKeys::showsDockIcon, false);
    process.journal.take();

    process.lifecycle.start();

    EXPECT_EQ(process.journal.entries(), wholeStart);
    EXPECT_TRUE(process.lifecycle.isStarted());
    for (const auto* folder : {"Logs", "Config", "Pending"})
        EXPECT_TRUE(is_directory(container.path() / folder)) << folder;
}

TEST(AppLifecycleCoordinator, stopsEverythingInItsOrder)
{
    SimulatedProgram process;
    process.lifecycle.start();
    process.journal.take();

    process.lifecycle.stop();

    EXPECT_EQ(process.journal.entries(),
        (std::vector<std::string>{
            "log NOTICE [lifecycle] Brindlex will terminate",
            "set smartInputMethodConfig",
            "set smartInputMethodConfig",
            "observe activations no more",
            "observe selection no more",
            "observe enabled sources no more",
            "tap off",
            "tap ends",
            "tap 0x400400",
            "tap on",
            "tap off",
            "tap ends",
            "tap 0x400",
            "tap on",
            "tap off",
            "tap ends",
            "observe preferences no more",
            "observe com.brindlex.Brindlex.showMainWindow com.brindlex.Brindlex no more",
        }));
}

TEST(AppLifecycleCoordinator, startsAndStopsClicksBeforeGesturesBeforeTheWheelBeforeTheClipboard)
{
    SimulatedProgram process;
    process.shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, leftGesture());
    const auto taps = [&] {
        std::vector<std::string> made;
        for (const auto& entry : process.journal.take())
            if (entry.starts_with("tap 0x"))
                made.push_back(entry);
        return made;
    };

    process.lifecycle.start();
    EXPECT_EQ(taps(),
        (std::vector<std::string>{
            "tap 0x6000000", "tap 0x6000046", "tap 0x6400046", "tap 0x6400446"}));

    process.lifecycle.stop();
    EXPECT_EQ(taps(), (std::vector<std::string>{"tap 0x400446", "tap 0x400400", "tap 0x400"}));
}

TEST(AppLifecycleCoordinator, stopsWithoutHavingStarted)
{
    SimulatedProgram process;

    process.lifecycle.stop();

    EXPECT_EQ(process.journal.entries(),
        (std::vector<std::string>{
            "observe preferences",
            "log NOTICE [lifecycle] Brindlex will terminate",
            // The switching observes from its first use on, which is this one.
            "set smartInputMethodConfig",
            "set smartInputMethodConfig",
            "observe activations",
            "observe selection",
            "observe enabled sources",
            "set smartInputMethodConfig",
            "set smartInputMethodConfig",
            "set smartInputMethodConfig",
            "set smartInputMethodConfig",
            "observe activations no more",
            "observe selection no more",
            "observe enabled sources no more",
            "observe permissions",
            "observe becoming active",
            "observe windows that open",
            "observe windows that close",
            "observe becoming active",
            "observe resigning active",
            "observe windows that close",
        }));
    EXPECT_FALSE(process.shared.globalEventTap().isLive());
}

TEST(AppLifecycleCoordinator, goesOnWithManagersThatMayNotStart)
{
    SimulatedProgram process;
    process.shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, leftGesture());
    process.computer.eventPermissions.set(false);

    process.lifecycle.start();

    EXPECT_EQ(process.log.takeLines(),
        (std::vector<std::string>{
            "WARN [mouse] MouseClick: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "WARN [mouse] MouseGesture: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "WARN [mouse] MouseScroll: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "INFO [clipboard] ClipboardHistoryMonitor: started",
            "WARN [mouse] CGEvent.tapCreate returned nil; check Accessibility and Input Monitoring "
            "permissions",
            "NOTICE [lifecycle] Brindlex launched",
        }));
    EXPECT_EQ(process.computer.input.tapMasks(), std::vector<EventMask>{});

    process.computer.eventPermissions.set(true);
    process.computer.mainThread.advance(2);
    EXPECT_EQ(process.computer.input.tapMasks(), std::vector<EventMask>{0x6400446});
    EXPECT_EQ(process.log.takeLines(), std::vector<std::string>{});
}

TEST(AppLifecycleCoordinator, goesOnWithoutAContainer)
{
    SimulatedProgram process;

    process.lifecycle.start();

    EXPECT_EQ(process.log.lines(),
        (std::vector<std::string>{"INFO [clipboard] ClipboardHistoryMonitor: started",
            "NOTICE [lifecycle] Brindlex launched"}));
    EXPECT_EQ(process.log.prunes(), std::vector<Date>{process.computer.clock.now()});
}

} // namespace
} // namespace brindlex
