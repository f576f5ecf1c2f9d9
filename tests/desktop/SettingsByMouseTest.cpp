#include "desktop/ProgramDesk.h"
#include "support/locks/InputGrab.h"
#include "support/tray/TrayHost.h"
#include "support/windows/AccessibleControls.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using nlohmann::json;

constexpr auto combo = "combo box";
constexpr auto button = "push button";
constexpr auto listItem = "list item";
constexpr auto tab = "page tab";

/// The settings of the program as the user opens them from the tray, and then works with the mouse
/// alone.
class SettingsByMouse : public testing::Test {
protected:
    void open(const std::string& selectedTab)
    {
        desk.files.writePreferences(
            {{"selectedMainWindowTab", selectedTab}, {"AppleLanguages", json::array({"en"})}});
        program.emplace(desk.desktop);
        ASSERT_TRUE(program->launches()) << program->report();
        controls.emplace(program->process());
        ASSERT_TRUE(eventually([&] { return tray.items().size() == 1; })) << program->report();
        tray.activate();
        ASSERT_TRUE(isInFront("Brindlex")) << program->report();
    }
    bool isInFront(const std::string& title) const
    {
        return eventually([&] {
            const auto active = desk.windows.active();
            return active && desk.windows.titleOf(active) == title && desk.windows.hasFocus(active);
        });
    }
    bool click(const std::string& role, const std::string& name) const
    {
        const auto area = controls->find(role, name);
        if (area)
            desk.input.click(area->centreX(), area->centreY());
        return area.has_value();
    }
    void pickAWindow()
    {
        open("Keyboard");
        ASSERT_TRUE(click(button, "Add App"));
        ASSERT_TRUE(isInFront("Choose an Application")) << program->report();
        ASSERT_TRUE(click(button, "Pick a Window")) << controls->report();
        ASSERT_TRUE(eventually([&] { return isAllInputTaken(desk.server); })) << program->report();
    }
    /// The rules for applications as they are stored.
    json rules() const
    {
        const auto record = desk.files.readRecord("inputMethodConfig");
        return record.is_object() ? record.value("rules", json::array()) : json::array();
    }

    ProgramDesk desk{{.keyboardLayouts = "us,de,ru", .accessibility = true}};
    TrayHost tray;
    std::optional<RunningProgram> program;
    std::optional<AccessibleControls> controls;
};

TEST_F(SettingsByMouse, addARuleForAnApplicationThatActsAtOnce)
{
    open("General");
    ASSERT_TRUE(click(tab, "Keyboard"));
    ASSERT_TRUE(click(button, "Add App"));
    ASSERT_TRUE(isInFront("Choose an Application")) << program->report();
    ASSERT_TRUE(click(listItem, "Beta"));
    ASSERT_TRUE(click(button, "Choose"));
    ASSERT_TRUE(eventually([&] { return rules().size() == 1; })) << program->report();
    EXPECT_EQ(rules()[0]["app"]["bundleID"], identifierOf("Beta"));

    ASSERT_TRUE(isInFront("Brindlex"));
    ASSERT_TRUE(click(combo, "English (US)")) << controls->report();
    ASSERT_TRUE(click(listItem, "German")) << controls->report();
    ASSERT_TRUE(eventually([&] { return rules()[0]["inputSourceID"] == german; }))
        << program->report();

    const TypingWindow beta(desk.windows, "Beta");
    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program->report();
}

TEST_F(SettingsByMouse, changeTheLanguageInWhichTheProgramComesBack)
{
    open("General");
    ASSERT_TRUE(click(combo, "System Default")) << controls->report();
    ASSERT_TRUE(click(listItem, "Deutsch")) << controls->report();

    EXPECT_TRUE(program->child().waitForEnd(usualDeadline));
    EXPECT_TRUE(isInFront("Brindlex")) << program->report();
    const auto process = BusConnection().processOf(programBusName);
    ASSERT_TRUE(process);
    EXPECT_NE(*process, program->process());
    EXPECT_TRUE(AccessibleControls(*process).find(tab, "Tastatur"));
}

TEST_F(SettingsByMouse, leaveTheKeysToTheUserWhenTheProgramIsKilledWhileAWindowIsPicked)
{
    ASSERT_NO_FATAL_FAILURE(pickAWindow());

    program->child().signal(SIGKILL);

    EXPECT_TRUE(eventually([&] { return !isAllInputTaken(desk.server); }));
}

using SettingsByMouseInTime = SettingsByMouse;

TEST_F(SettingsByMouseInTime, leaveTheKeysToTheUserWhenTheProgramHangsWhileAWindowIsPicked)
{
    ASSERT_NO_FATAL_FAILURE(pickAWindow());

    program->child().signal(SIGSTOP);
    const auto areLeftToTheUser = [&] {
        desk.input.type("a");
        return !isAllInputTaken(desk.server);
    };
    EXPECT_TRUE(eventually(areLeftToTheUser, std::chrono::seconds(1)));

    program->child().signal(SIGCONT);
    EXPECT_TRUE(isInFront("Choose an Application")) << program->report();
    EXPECT_TRUE(
        throughout(std::chrono::milliseconds(300), [&] { return !isAllInputTaken(desk.server); }));
}

} // namespace
} // namespace brindlex
