#include "desktop/ProgramDesk.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedInput.h"
#include "support/windows/AccessibleControls.h"
#include "support/windows/TypingWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using nlohmann::json;
using namespace std::chrono_literals;

constexpr auto longEnoughForWindows = 1s;

/// As the user starts it.
const std::vector<std::string> byHand;

class SettingsWindow : public testing::Test {
protected:
    /// The window of the program with the title, once it has the keys.
    std::optional<xcb_window_t> windowInFront(const std::string& title) const
    {
        const auto isThere = [&] {
            const auto active = desk.windows.active();
            return active && desk.windows.titleOf(active) == title && desk.windows.hasFocus(active);
        };
        return eventually(isThere) ? std::optional(desk.windows.active()) : std::nullopt;
    }
    bool hasWindow(const std::string& title) const
    {
        for (const auto window : desk.windows.managed())
            if (desk.windows.titleOf(window) == title)
                return true;
        return false;
    }
    void press(std::initializer_list<std::uint8_t> keys) const
    {
        for (const auto key : keys) {
            desk.input.pressKey(key);
            desk.input.releaseKey(key);
        }
    }
    /// The rules for applications as they are stored.
    json rules() const
    {
        const auto record = desk.files.readRecord("inputMethodConfig");
        return record.is_object() ? record.value("rules", json::array()) : json();
    }
    bool hasRule(const std::string& application, const std::string& source) const
    {
        return eventually([&] {
            const auto stored = rules();
            return stored.size() == 1 && stored[0]["app"]["bundleID"] == identifierOf(application)
                && stored[0]["inputSourceID"] == source;
        });
    }

    bool isSwitchedOff() const
    {
        const auto record = desk.files.readRecord("inputMethodConfig");
        return record.is_object() && record.value("enabled", true) == false;
    }

    ProgramDesk desk;
};

TEST_F(SettingsWindow, opensWhenTheUserStartsTheProgram)
{
    RunningProgram program(desk.desktop, byHand);

    const auto window = windowInFront("Brindlex");
    ASSERT_TRUE(window) << program.report();
    EXPECT_FALSE(desk.server.values(*window, "_NET_WM_ICON").empty());
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

TEST_F(SettingsWindow, staysAwayWhenTheDesktopStartsTheProgram)
{
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(throughout(longEnoughForWindows, [&] { return !hasWindow("Brindlex"); }));
}

TEST_F(SettingsWindow, comesBackWhenTheProgramIsStartedAgainAfterItWasClosed)
{
    const RunningProgram program(desk.desktop, byHand);
    ASSERT_TRUE(windowInFront("Brindlex")) << program.report();
    press({keycode::escape});
    ASSERT_TRUE(eventually([&] { return !hasWindow("Brindlex"); })) << program.report();
    EXPECT_TRUE(program.child().isRunning());

    const RunningProgram again(desk.desktop, byHand);

    EXPECT_TRUE(windowInFront("Brindlex")) << program.report();
    EXPECT_TRUE(program.child().isRunning());
}

TEST_F(SettingsWindow, addsARuleByTheKeyboardAloneThatActsAtOnce)
{
    desk.files.writePreferences(
        {{"selectedMainWindowTab", "Keyboard"}, {"AppleLanguages", json::array({"en"})}});
    const RunningProgram program(desk.desktop, byHand);
    const auto settings = windowInFront("Brindlex");
    ASSERT_TRUE(settings) << program.report();

    // Past two switches to the button.
    press({keycode::tab, keycode::tab, keycode::tab, keycode::space});
    ASSERT_TRUE(windowInFront("Choose an Application")) << program.report();
    desk.input.type("beta\n");
    ASSERT_TRUE(hasRule("Beta", us)) << program.report();
    ASSERT_TRUE(windowInFront("Brindlex")) << program.report();
    desk.input.type("g");

    ASSERT_TRUE(hasRule("Beta", german)) << program.report();
    const TypingWindow beta(desk.windows, "Beta");
    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
}

TEST_F(SettingsWindow, addsARuleForAWebsiteByTheKeyboardAlone)
{
    desk.files.writePreferences(
        {{"selectedMainWindowTab", "Keyboard"}, {"AppleLanguages", json::array({"en"})}});
    const RunningProgram program(desk.desktop, byHand);
    ASSERT_TRUE(windowInFront("Brindlex")) << program.report();
    const auto isStored = [&](const std::string& source) {
        const auto record = desk.files.readRecord("inputMethodConfig");
        if (!record.is_object() || !record.value("domainRulesEnabled", false))
            return false;
        const auto websites = record.value("domainRules", json::array());
        return websites.size() == 1 && websites[0]["domainSuffix"] == "github.com"
            && websites[0]["inputSourceID"] == source;
    };

    // Past two switches and a button to the switch; then the field, in which the first suggestion
    // is taken, and the chooser of the rule.
    press({keycode::tab, keycode::tab, keycode::tab, keycode::tab, keycode::space, keycode::tab});
    desk.input.type("git");
    press({keycode::down, keycode::enter});
    ASSERT_TRUE(eventually([&] { return isStored(us); })) << program.report();
    desk.input.type("g");

    EXPECT_TRUE(eventually([&] { return isStored(german); })) << program.report();
}

TEST_F(SettingsWindow, opensTheGuideInWhichAPermissionIsGivenBack)
{
    desk.files.writePreferences({{"selectedMainWindowTab", "General"},
        {"AppleLanguages", json::array({"en"})}, {"allowsInputMonitoring", false}});
    const RunningProgram program(desk.desktop, byHand);
    ASSERT_TRUE(windowInFront("Brindlex")) << program.report();

    // Past two switches and a chooser to the button; the guide opens at what is to be mended.
    press({keycode::tab, keycode::tab, keycode::tab, keycode::tab, keycode::space});
    ASSERT_TRUE(windowInFront("Brindlex Permissions")) << program.report();
    press({keycode::space});

    EXPECT_TRUE(eventually([&] {
        const auto preferences = desk.files.readPreferences();
        return preferences.is_object() && !preferences.contains("allowsInputMonitoring");
    })) << program.report();
    press({keycode::escape});
    EXPECT_TRUE(eventually([&] { return !hasWindow("Brindlex Permissions"); }));
    EXPECT_TRUE(windowInFront("Brindlex"));
}

TEST_F(SettingsWindow, followsWhatAnotherProcessWritesWhileItIsOpen)
{
    desk.files.writePreferences(
        {{"selectedMainWindowTab", "Keyboard"}, {"AppleLanguages", json::array({"en"})}});
    const RunningProgram program(desk.desktop, byHand);
    ASSERT_TRUE(windowInFront("Brindlex")) << program.report();
    // What a first start writes of its own.
    ASSERT_TRUE(eventually([&] { return rules().is_array(); })) << program.report();
    desk.applyRules({{"Beta", german}});
    const TypingWindow beta(desk.windows, "Beta");
    ASSERT_TRUE(desk.usesGroup(germanGroup)) << program.report();

    EXPECT_TRUE(hasRule("Beta", german)) << program.report();
    EXPECT_TRUE(hasWindow("Brindlex"));
}

TEST_F(SettingsWindow, losesNothingWhenTheProgramIsKilledWithItOpen)
{
    desk.files.writePreferences(
        {{"selectedMainWindowTab", "Keyboard"}, {"AppleLanguages", json::array({"en"})}});
    {
        RunningProgram program(desk.desktop, byHand);
        ASSERT_TRUE(windowInFront("Brindlex")) << program.report();
        press({keycode::tab, keycode::space});
        ASSERT_TRUE(eventually([&] { return isSwitchedOff(); })) << program.report();
        program.kill();
    }

    const RunningProgram again(desk.desktop, byHand);
    ASSERT_TRUE(windowInFront("Brindlex")) << again.report();
    EXPECT_TRUE(isSwitchedOff());
}

TEST(SettingsWindowForAScreenReader, saysWhichRuleHasSwitched)
{
    const ProgramDesk desk({.keyboardLayouts = "us,de,ru", .accessibility = true});
    desk.applyRules({{"Beta", german}});
    auto preferences = desk.files.readPreferences();
    preferences["selectedMainWindowTab"] = "Keyboard";
    preferences["AppleLanguages"] = json::array({"en"});
    desk.files.writePreferences(preferences);
    const RunningProgram program(desk.desktop, byHand);
    const AccessibleControls controls(program.process());
    ASSERT_TRUE(controls.says("Not used yet")) << controls.report();

    const TypingWindow beta(desk.windows, "Beta");
    ASSERT_TRUE(desk.usesGroup(germanGroup)) << program.report();

    EXPECT_TRUE(controls.says("This rule, last used today")) << controls.report();
}

} // namespace
} // namespace brindlex
