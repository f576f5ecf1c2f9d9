#include "app/AppLifecycleCoordinator.h"

#include "app/JournalledProcess.h"
#include "log/LoggedProcess.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::vector<std::string> wholeStart{
    "list com.brindlex.Brindlex",
    "container",
    "prune",
    "set selectedMainWindowTab",
    "set launchAtLogin",
    "set showsDockIcon",
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
    "observe com.brindlex.Brindlex.showMainWindow com.brindlex.Brindlex",
    "set smartInputMethodConfig",
    "observe activations",
    "set smartInputMethodConfig",
    "tap 0x6000000",
    "tap ends",
    "tap 0x6400000",
    "log NOTICE [lifecycle] Brindlex launched",
};

TEST(AppLifecycleCoordinator, startsEverythingInItsOrder)
{
    SimulatedSessionServices services;
    JournalledProcess process(services);

    process.lifecycle.start();

    EXPECT_EQ(process.journal.entries, wholeStart);
    EXPECT_TRUE(process.lifecycle.isStarted());
    for (const auto* folder : {"Logs", "Config", "Pending"})
        EXPECT_TRUE(is_directory(process.container.folder_.path() / folder)) << folder;
}

TEST(AppLifecycleCoordinator, stopsEverythingInItsOrder)
{
    SimulatedSessionServices services;
    JournalledProcess process(services);
    process.lifecycle.start();
    process.journal.entries.clear();

    process.lifecycle.stop();

    EXPECT_EQ(process.journal.entries,
        (std::vector<std::string>{
            "log NOTICE [lifecycle] Brindlex will terminate",
            "set smartInputMethodConfig",
            "observe activations no more",
            "tap ends",
            "tap 0x400000",
            "tap ends",
            "observe no more",
        }));
}

TEST(AppLifecycleCoordinator, startsAndStopsClicksBeforeGesturesBeforeTheWheel)
{
    SimulatedSessionServices services;
    JournalledProcess process(services);
    process.shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, leftGesture());
    const auto taps = [&] {
        std::vector<std::string> made;
        for (const auto& entry : std::exchange(process.journal.entries, {}))
            if (entry.starts_with("tap 0x"))
                made.push_back(entry);
        return made;
    };

    process.lifecycle.start();
    EXPECT_EQ(
        taps(), (std::vector<std::string>{"tap 0x6000000", "tap 0x6000046", "tap 0x6400046"}));

    process.lifecycle.stop();
    EXPECT_EQ(taps(), (std::vector<std::string>{"tap 0x400046", "tap 0x400000"}));
}

TEST(AppLifecycleCoordinator, stopsWithoutHavingStarted)
{
    SimulatedSessionServices services;
    JournalledProcess process(services);

    process.lifecycle.stop();

    EXPECT_EQ(process.journal.entries,
        (std::vector<std::string>{
            "log NOTICE [lifecycle] Brindlex will terminate",
            // The switching observes from its first use on, which is this one.
            "set smartInputMethodConfig",
            "observe activations",
            "set smartInputMethodConfig",
            "observe activations no more",
        }));
    EXPECT_FALSE(process.shared.globalEventTap().isLive());
}

TEST(AppLifecycleCoordinator, goesOnWithManagersThatMayNotStart)
{
    LoggedProcess process;
    process.shared.preferences().write(&UserDefaultPreferenceKeys::mouseConfig, leftGesture());
    process.desktop.eventPermissions.set(false);

    process.lifecycle.start();

    EXPECT_EQ(process.log.takeLines(),
        (std::vector<std::string>{
            "WARN [mouse] MouseClick: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "WARN [mouse] MouseGesture: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "WARN [mouse] MouseScroll: missing Accessibility or Input Monitoring permission; not "
            "starting",
            "NOTICE [lifecycle] Brindlex launched",
        }));
    EXPECT_EQ(process.desktop.input.tapMasks(), std::vector<EventMask>{});

    process.desktop.eventPermissions.set(true);
    process.desktop.mainThread.advance(2);
    EXPECT_EQ(process.desktop.input.tapMasks(), std::vector<EventMask>{0x6400046});
    EXPECT_EQ(process.log.takeLines(), std::vector<std::string>{});
}

TEST(AppLifecycleCoordinator, goesOnWithoutAContainer)
{
    LoggedProcess process;

    process.lifecycle.start();

    EXPECT_EQ(
        process.log.lines(), std::vector<std::string>{"NOTICE [lifecycle] Brindlex launched"});
    EXPECT_EQ(process.log.prunes(), std::vector<Date>{process.desktop.clock.now()});
}

} // namespace
} // namespace brindlex
