#include "desktop/ProgramDesk.h"
#include "support/processes/ProcessTable.h"

#include <gtest/gtest.h>

#include <csignal>
#include <ostream>
#include <unistd.h>

namespace brindlex {
namespace {

class DamagedFiles : public testing::Test {
protected:
    /// Starts the program, and sees that it switches and ends as always, with or without its files.
    void expectToWork()
    {
        RunningProgram program(desk.desktop);
        EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
        EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
    }

    ProgramDesk desk;
    TypingWindow alpha{desk.windows, "Alpha"};
};

TEST_F(DamagedFiles, includeAFileWhereTheContainerBelongs)
{
    desk.applyRules({{"Alpha", german}});
    write(desk.files.container(), "not a folder");

    expectToWork();

    EXPECT_EQ(contentOf(desk.files.container()), "not a folder");
}

TEST_F(DamagedFiles, includeAPlaceWhereNoContainerCanBe)
{
    desk.applyRules({{"Alpha", german}});
    // Not even root can make a folder there.
    desk.desktop.setVariable("XDG_DATA_HOME", "/proc/nowhere");

    RunningProgram program(desk.desktop);

    // Without its applications folder Alpha is known by the class of its window alone, and without
    // its container there is no log that tells of the launch.
    EXPECT_TRUE(eventually([&] { return catches(program.process(), SIGTERM); }))
        << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

TEST_F(DamagedFiles, includeAContainerOfAnotherUser)
{
    desk.applyRules({{"Alpha", german}});
    // The root folder is another's to everyone but root, who can give a folder away.
    if (geteuid() == 0) {
        std::filesystem::create_directory(desk.files.container());
        ASSERT_EQ(chown(desk.files.container().c_str(), 65534, 65534), 0);
    } else {
        std::filesystem::create_directory_symlink("/", desk.files.container());
    }

    expectToWork();

    EXPECT_FALSE(std::filesystem::exists(desk.files.container() / "Logs"));
}

TEST_F(DamagedFiles, includeAContainerThatOthersMayWriteTo)
{
    desk.applyRules({{"Alpha", german}});
    std::filesystem::create_directory(desk.files.container());
    std::filesystem::permissions(desk.files.container(), std::filesystem::perms::all);

    expectToWork();

    EXPECT_FALSE(std::filesystem::exists(desk.files.container() / "Logs"));
}

TEST_F(DamagedFiles, includeAContainerThatGoesWhileTheProgramRuns)
{
    desk.applyRules({{"Alpha", german}});
    const TypingWindow gamma(desk.windows, "Gamma");
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    std::error_code ignored;
    std::filesystem::remove_all(desk.files.container(), ignored);
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
    EXPECT_EQ(desk.files.logMessages(),
        (std::vector<std::string>{
            "Selected xkb:de::deu for com.example.Alpha, by its rule", "Brindlex will terminate"}));
}

/// What stands in the file, and how the line that tells of it begins.
struct Damage {
    std::string content;
    std::string logged = "Preferences set aside as ";

    friend void PrintTo(const Damage& damage, std::ostream* stream)
    {
        *stream << testing::PrintToString(damage.content);
    }
};

class DamagedPreferences : public DamagedFiles, public testing::WithParamInterface<Damage> { };

TEST_P(DamagedPreferences, areLikeNone)
{
    write(desk.files.preferences(), GetParam().content);
    RunningProgram program(desk.desktop);

    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(eventually([&] {
        const auto preferences = desk.files.readPreferences();
        return preferences.is_object() && preferences.contains("inputMethodConfig");
    })) << contentOf(desk.files.preferences());
    EXPECT_TRUE(program.logs(GetParam().logged)) << program.report();
    EXPECT_TRUE(desk.keepsGroup(usGroup));
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

INSTANTIATE_TEST_SUITE_P(OfManyKinds, DamagedPreferences,
    testing::Values(Damage{""}, Damage{"{"}, Damage{"null"}, Damage{"[1,2,3]"},
        Damage{std::string("\0\0\0\0", 4)}, Damage{"\xff\xfe{}"}, Damage{std::string(100'000, '[')},
        Damage{R"({"inputMethodConfig":7,"smartInputMethodConfig":[]})",
            "The preference \"inputMethodConfig\" cannot be read; the default applies"},
        Damage{R"({"inputMethodConfig":"{\"enabled\":"})",
            "The preference \"inputMethodConfig\" cannot be read; the default applies"}));

TEST_F(DamagedFiles, includeAFolderWhereThePreferencesBelong)
{
    std::filesystem::create_directories(desk.files.preferences() / "inside");
    RunningProgram program(desk.desktop);

    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
    const auto setAside = desk.files.preferences().string() + ".corrupt";
    EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::path(setAside) / "inside"));
    EXPECT_TRUE(std::filesystem::is_regular_file(desk.files.preferences()));
}

} // namespace
} // namespace brindlex
