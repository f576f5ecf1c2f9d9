#include "desktop/ProgramDesk.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using nlohmann::json;

/// What a user does to the file of preferences, as the program answers to it.
class PreferencesOfAUser : public testing::Test {
protected:
    /// The preferences of a user with a rule for Alpha, each record as an object instead of as
    /// text.
    static json plainRules()
    {
        SwitchingRules rules{.applications = {{identifierOf("Alpha"), german}}};
        auto preferences = rules.preferences();
        for (auto& record : preferences)
            record = json::parse(record.get<std::string>());
        return preferences;
    }

    ProgramDesk desk;
    TypingWindow alpha{desk.windows, "Alpha"};
};

TEST_F(PreferencesOfAUser, holdRulesThatAreWrittenAsPlainJson)
{
    const auto rules = plainRules();
    desk.files.writePreferences(rules);
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
    EXPECT_EQ(desk.files.readPreferences()["inputMethodConfig"], rules["inputMethodConfig"]);
}

TEST_F(PreferencesOfAUser, liveInAFolderForTheUserAloneWhereThereIsNone)
{
    std::filesystem::remove_all(desk.desktop.configFolder());
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
    EXPECT_TRUE(desk.files.readPreferences().contains("inputMethodConfig"));
    EXPECT_EQ(std::filesystem::status(desk.desktop.configFolder()).permissions(),
        std::filesystem::perms::owner_all);
}

TEST_F(PreferencesOfAUser, stayAsTheyAreWhereTheyCannotBeRead)
{
    const json unreadable{{"mouseConfig", {{"click", 1}}}, {"launchAtLogin", {1, "yes"}},
        {"clipboardMaxItems", 9'223'372'036'854'775'808U}, {"showsDockIcon", nullptr}};
    desk.files.writePreferences(unreadable);
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();

    const auto stored = desk.files.readPreferences();
    EXPECT_TRUE(stored.contains("inputMethodConfig")) << "Nothing was written at all.";
    const auto messages = program.messages();
    for (const auto& [key, value] : unreadable.items()) {
        EXPECT_EQ(stored[key], value) << key;
        const auto warning = "The preference \"" + key + "\" cannot be read; the default applies";
        EXPECT_EQ(std::count(messages.begin(), messages.end(), warning), 1) << program.report();
    }
}

} // namespace
} // namespace brindlex
