#include "architecture/Sources.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace brindlex {
namespace {

/// The sources without a test of their own, by what tests them instead. The simulated computer is
/// held to the contract tests of its abilities throughout.
const std::map<std::string, std::vector<std::string>> sourcesWithoutATestOfTheirOwn{
    {"the contract tests of its ability",
        {"CurlFetch", "DesktopApplicationBundles", "FetchMain", "Fcitx5InputSources",
            "IBusInputSources", "PosixClock", "QtFilePreviewing", "QtProgramActivation",
            "X11ApplicationActivating", "X11WindowPick", "X11WindowPicking", "XkbInputSources"}},
    {"the desktop tests, with the whole program",
        {"LinuxEntry", "LinuxPlatform", "LinuxSession", "ProgramScreens", "main"}},
    {"the tests of what hangs, with the watchdog as a process",
        {"InputRescue", "Watchdog", "WatchdogMain"}},
    {"X11TapSessionButtonsTest and its neighbours, and the played scenarios, on a real server",
        {"X11CursorState", "X11DeviceGrabs", "X11Injection", "X11InputDevices", "X11InputEvent",
            "X11KeyboardMap", "X11KeymapSync", "X11KeysForHand", "X11LentButtons",
            "X11TappedInput"}},
    {"PasteboardTest and X11PasteboardTest, with owners and readers on a real server",
        {"X11ClipboardThread", "X11ClipboardWorker", "X11PasteboardRead", "X11RequestorWindows",
            "X11SelectionOffer", "X11SelectionRead", "X11SelectionTransfers"}},
    {"every test that opens a window on a real server",
        {"ActiveScreen", "RoundedRegion", "X11Compositor", "X11Connection", "X11Properties",
            "X11WindowActivation", "X11WindowReading", "X11WindowStack", "WindowsServer",
            "XkbProtocol"}},
    {"X11PressesTest and QtKeyablePanelTest",
        {"KeyboardGrab", "X11PressesOutside", "X11RawPresses"}},
    {"ModifierChangeTest, and the played scenarios on a real server", {"X11ExactModifiers"}},
    {"AccessibleBrowserPagesTest and AccessibleElementTreeTest, with programs behind a real bus",
        {"AccessibilityReply", "AccessibleElementReader", "AccessiblePageReader"}},
    {"DesktopInputSourcesTest, with real daemons",
        {"Fcitx5Method", "IBusConnection", "IBusEngine", "XkbRegistry"}},
    {"DBusNotificationsTest and DBusProgramInstancesTest, on a real bus",
        {"DBusReply", "DBusSignal", "OwnBusConnection", "SessionBus"}},
    {"PosixProcessLaunchingTest and PosixProgramRelaunchingTest", {"FreshStart"}},
    {"PreferenceFileTest", {"FolderLock"}},
    {"StatusItemTest and TrayStatusItemTest, with trays on a real bus and a real server",
        {"DockedIcon", "DockingTray", "MenuValues", "NotifierItem", "NotifierRegistration",
            "NotifierValues", "PictureDrawing", "TrayMenu"}},
    {"TrayPictureTest, which looks at what it has drawn", {"DrawIconMain"}},
    {"SwitchReducerSelectionTest and its neighbours", {"SwitchAttempt"}},
    {"X11ApplicationOpeningTest, with a shell on a real bus", {"DesktopOverview"}},
    {"UserDefaultPreferenceKeysTest and the tests of the stores",
        {"ClipboardPreferenceKeys", "InputMethodPreferenceKeys", "MousePreferenceKeys"}},
    {"AppLifecycleCoordinatorTest", {"SharedInstances"}},
    {"ClipboardPickerViewTest", {"ClipboardItemRows", "ClipboardSearchField"}},
    {"ScreenGalleryTest, which walks all screens, and the tests of the screens",
        {"AboutScreen", "ApplicationIcon", "Buttons", "Card", "EmptyState", "GeneralScreen",
            "Glyph", "InputMethodDomainRulesSection", "InputMethodOptionsSection",
            "InputMethodRulesSection", "InputMethodSmartRulesSection", "InputRuleRow",
            "InputSourceOptions", "KeyRecorderField", "LogDetail", "LogLevelsButton",
            "LogTableModel", "MouseActionPicker", "MouseBindingRow", "MouseBindingSection",
            "MouseDisabledAppsSection", "MouseGestureSection", "MouseScrollSection", "Page",
            "SmartStatsModel", "StatusLabel", "StyleSheet", "TabPlaceholder", "TableCells",
            "TextLabel"}},
};

/// Whether the folder or one inside it has a header whose concept the test is named after, with or
/// without words that say which side of it.
bool hasSubject(const std::filesystem::path& folder, const std::string& test)
{
    std::error_code problem;
    for (const auto& item : std::filesystem::recursive_directory_iterator(folder, problem))
        if (item.path().extension() == ".h" && test.starts_with(item.path().stem().string()))
            return true;
    return false;
}

TEST(TestsMirrorSources, everyTestHasItsConceptInTheFolderOfTheSameName)
{
    const std::filesystem::path sources = SOURCES;
    const std::filesystem::path tests = TESTS;
    for (const auto& test : sourceFiles(tests)) {
        const auto name = test.stem().string();
        const auto folder = test.parent_path();
        const bool isOfTheWholeProgram = folder == "architecture" || folder == "desktop";
        if (!name.ends_with("Test") || isOfTheWholeProgram)
            continue;
        // What tests share has its subject among the tests.
        EXPECT_TRUE(hasSubject(sources / folder, name) || hasSubject(tests / "support", name))
            << test;
    }
}

/// Whether the folder has a test named after the concept, with or without words that say which side
/// of it.
bool hasTest(const std::filesystem::path& folder, const std::string& subject)
{
    std::error_code problem;
    for (const auto& item : std::filesystem::directory_iterator(folder, problem)) {
        const auto name = item.path().stem().string();
        const bool isTest = name.ends_with("Test") || name.ends_with("Tests");
        if (isTest && name.starts_with(subject))
            return true;
    }
    return false;
}

TEST(TestsMirrorSources, everySourceHasATestOrAReasonToHaveNone)
{
    std::set<std::string> excused;
    for (const auto& [reason, names] : sourcesWithoutATestOfTheirOwn)
        excused.insert(names.begin(), names.end());
    for (const auto& source : sourceFiles(SOURCES)) {
        const bool isSimulated = source.parent_path() == "platform/simulated";
        if (source.extension() != ".cpp" || isSimulated)
            continue;
        const auto name = source.stem().string();
        const auto folder = std::filesystem::path(TESTS) / source.parent_path();
        EXPECT_NE(hasTest(folder, name), excused.contains(name))
            << source << " needs a test, or a reason to have none, and not both";
    }
}

} // namespace
} // namespace brindlex
