#include "desktop/ProgramDesk.h"
#include "support/bus/BusConnection.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using nlohmann::json;

class ProgramStart : public testing::Test {
protected:
    /// Waits until the preference has the value; null stands for none.
    bool hasPreference(const std::string& key, const json& value) const
    {
        return eventually([&] {
            const auto preferences = desk.files.readPreferences();
            return preferences.is_object() && preferences.value(key, json()) == value;
        });
    }

    std::filesystem::path autostartFolder() const
    {
        return desk.desktop.configFolder() / "autostart";
    }

    void writeAutostartEntry(const std::string& lines) const
    {
        std::filesystem::create_directories(autostartFolder());
        write(autostartFolder() / "com.brindlex.Brindlex.desktop",
            "[Desktop Entry]\nType=Application\nExec=brindlex\n" + lines);
    }

    const ProgramDesk desk;
};

TEST_F(ProgramStart, recordsTheVersionOfAFirstRunInSilence)
{
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}}));

    const auto preferences = desk.files.readPreferences();
    EXPECT_TRUE(preferences.value("lastRunAppVersion", "").starts_with("0."));
    EXPECT_FALSE(preferences.contains("updatedFromVersion"));
    EXPECT_FALSE(preferences.contains("AppleLanguages"));
    for (const auto& message : program.messages())
        EXPECT_FALSE(message.starts_with("App version changed")) << message;
}

TEST_F(ProgramStart, recordsAnotherVersionOnce)
{
    desk.files.writePreferences({{"lastRunAppVersion", "0.0.1"}});
    {
        RunningProgram program(desk.desktop);
        ASSERT_TRUE(program.launches()) << program.report();
        EXPECT_TRUE(program.logs("App version changed: 0.0.1 → 0."));
        EXPECT_EQ(program.quit(), (ProcessEnd{0, {}}));
    }
    EXPECT_EQ(desk.files.readPreferences().value("updatedFromVersion", ""), "0.0.1");

    RunningProgram again(desk.desktop);
    ASSERT_TRUE(again.launches()) << again.report();
    EXPECT_EQ(again.quit(), (ProcessEnd{0, {}}));
    for (const auto& message : again.messages())
        EXPECT_FALSE(message.starts_with("App version changed")) << message;
}

TEST_F(ProgramStart, takesOverThatTheDesktopStartsItAtLogin)
{
    writeAutostartEntry("");
    const RunningProgram program(desk.desktop, {"--started-at-login"});
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(hasPreference("launchAtLogin", true));
}

TEST_F(ProgramStart, takesOverThatTheDesktopStartsItNoMore)
{
    desk.files.writePreferences({{"launchAtLogin", true}});
    writeAutostartEntry("Hidden=true\n");
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(hasPreference("launchAtLogin", false));
    EXPECT_EQ(contentOf(autostartFolder() / "com.brindlex.Brindlex.desktop"),
        "[Desktop Entry]\nType=Application\nExec=brindlex\nHidden=true\n");
}

TEST_F(ProgramStart, appliesTheLanguageThatIsStored)
{
    desk.files.writePreferences({{"languagePreference", "de"}});
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(hasPreference("AppleLanguages", json::array({"de"})));
}

TEST_F(ProgramStart, leavesTheLanguageToTheSystem)
{
    desk.files.writePreferences(
        {{"languagePreference", "system"}, {"AppleLanguages", json::array({"de"})}});
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(hasPreference("AppleLanguages", {}));
}

TEST_F(ProgramStart, takesThePlaceOfTheInstanceThatRunsAfterAChoiceOfLanguage)
{
    RunningProgram old(desk.desktop);
    ASSERT_TRUE(old.launches()) << old.report();
    constexpr auto flag = "shouldRestoreFocusAfterLanguageRelaunch";
    ASSERT_TRUE(hasPreference(flag, false));
    auto preferences = desk.files.readPreferences();
    preferences[flag] = true;
    desk.files.writePreferences(preferences);

    RunningProgram relaunched(desk.desktop);
    ASSERT_TRUE(relaunched.launches()) << relaunched.report();
    EXPECT_TRUE(old.child().isRunning());

    EXPECT_EQ(old.quit(), (ProcessEnd{0, {}})) << old.report();
    EXPECT_TRUE(eventually(
        [&] { return BusConnection().processOf(programBusName) == relaunched.process(); }));
    EXPECT_EQ(relaunched.quit(), (ProcessEnd{0, {}})) << relaunched.report();
}

} // namespace
} // namespace brindlex
