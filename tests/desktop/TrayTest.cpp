#include "desktop/ProgramDesk.h"
#include "support/tray/DockTray.h"
#include "support/tray/TrayHost.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

const std::vector<TrayHost::Entry> englishMenu{{"Check for Updates…", false}, {"", true, true},
    {"Open Brindlex"}, {"", true, true}, {"Quit Brindlex"}};

constexpr auto absence = "No tray shows the icon; starting Brindlex again opens its window";

/// The program on a desktop that has a tray of the test's.
class ProgramInTray : public testing::Test {
protected:
    void start()
    {
        program.emplace(desk.desktop, std::vector<std::string>{"--started-at-login"});
        ASSERT_TRUE(program->launches()) << program->report();
    }
    bool has(TrayHost& host, const std::vector<TrayHost::Entry>& menu) const
    {
        return eventually([&] { return host.items().size() == 1 && host.menu() == menu; });
    }
    bool endsInOrder() const
    {
        const auto end = program->child().waitForEnd(10s);
        return end == ProcessEnd{0, {}} && program->messages().back() == "Brindlex will terminate";
    }
    std::optional<xcb_window_t> window() const { return desk.windows.withClass("Brindlex"); }
    bool isWindowInFront() const { return window() && desk.windows.active() == *window(); }
    long logged(const std::string& message) const
    {
        const auto messages = program->messages();
        return std::count(messages.begin(), messages.end(), message);
    }

    const ProgramDesk desk;
    std::optional<RunningProgram> program;
};

TEST_F(ProgramInTray, showsItsNameAndItsMenu)
{
    TrayHost host;
    start();

    EXPECT_TRUE(has(host, englishMenu)) << program->report();
    EXPECT_TRUE(eventually([&] { return host.properties()["Title"] == "Brindlex"; }));
    EXPECT_EQ(host.properties()["Id"], "com.brindlex.Brindlex");
}

TEST_F(ProgramInTray, isOpenedByItsItemAndByAClick)
{
    TrayHost host;
    start();
    ASSERT_TRUE(has(host, englishMenu)) << program->report();

    EXPECT_EQ(window(), std::nullopt);

    host.choose("Open Brindlex");
    EXPECT_TRUE(eventually([&] { return isWindowInFront(); })) << program->report();
    EXPECT_EQ(logged("Asked to show the main window"), 1);
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    host.activate();

    EXPECT_TRUE(eventually([&] { return isWindowInFront(); })) << program->report();
    EXPECT_EQ(logged("Asked to show the main window"), 2);
}

TEST_F(ProgramInTray, keepsItsIconWhenItsWindowIsClosed)
{
    TrayHost host;
    start();
    ASSERT_TRUE(has(host, englishMenu)) << program->report();
    host.choose("Open Brindlex");
    ASSERT_TRUE(eventually([&] { return isWindowInFront(); })) << program->report();

    desk.server.ask(*window(), "_NET_CLOSE_WINDOW", {});
    ASSERT_TRUE(eventually([&] { return !window(); }));

    EXPECT_TRUE(has(host, englishMenu)) << program->report();
    host.choose("Quit Brindlex");
    EXPECT_TRUE(endsInOrder()) << program->report();
}

TEST_F(ProgramInTray, endsInOrderByItsItem)
{
    TrayHost host;
    start();
    ASSERT_TRUE(has(host, englishMenu)) << program->report();

    host.choose("Quit Brindlex");

    EXPECT_TRUE(endsInOrder()) << program->report();
    EXPECT_TRUE(eventually([&] { return host.items().empty(); }));
}

TEST_F(ProgramInTray, offersNoCheckWithoutAFeed)
{
    TrayHost host;
    start();
    ASSERT_TRUE(has(host, englishMenu)) << program->report();

    host.choose("Check for Updates…");
    host.choose("Open Brindlex");

    EXPECT_TRUE(program->logs("Asked to show the main window"));
    EXPECT_FALSE(std::ranges::any_of(program->messages(),
        [](const auto& message) { return message.starts_with("Update check failed"); }));
}

TEST_F(ProgramInTray, speaksTheUsersLanguage)
{
    desk.files.writePreferences({{"languagePreference", "zh-Hans"}});
    TrayHost host;
    start();

    EXPECT_TRUE(has(host,
        {{"检查更新…", false}, {"", true, true}, {"打开 Brindlex"}, {"", true, true},
            {"退出 Brindlex"}}))
        << program->report();
}

TEST_F(ProgramInTray, comesBackWithAPanelThatHasCrashed)
{
    std::optional<TrayHost> host(std::in_place);
    start();
    ASSERT_TRUE(has(*host, englishMenu)) << program->report();

    for (int time = 0; time < 3; ++time) {
        host->report("Open Brindlex", "opened");
        host.emplace();
        EXPECT_TRUE(has(*host, englishMenu)) << program->report();
    }
    host->choose("Quit Brindlex");
    EXPECT_TRUE(endsInOrder()) << program->report();
}

TEST_F(ProgramInTray, hasItsIconInATrayOfWindowsUntilAPanelComesThatDrawsIt)
{
    DockTray tray;
    start();
    ASSERT_TRUE(eventually([&] { return tray.icons().size() == 1; })) << program->report();

    std::optional<TrayHost> host(std::in_place);
    EXPECT_TRUE(has(*host, englishMenu)) << program->report();
    EXPECT_TRUE(eventually([&] { return tray.icons().empty(); }));

    host.reset();
    EXPECT_TRUE(eventually([&] { return tray.icons().size() == 1; })) << program->report();
}

TEST_F(ProgramInTray, isOpenedInATrayOfWindows)
{
    DockTray tray;
    start();
    ASSERT_TRUE(eventually([&] { return tray.icons().size() == 1; })) << program->report();

    desk.input.click(tray.iconArea().centreX(), tray.iconArea().centreY());

    EXPECT_TRUE(eventually([&] { return isWindowInFront(); })) << program->report();
}

TEST_F(ProgramInTray, endsInOrderInATrayOfWindows)
{
    DockTray tray;
    start();
    ASSERT_TRUE(eventually([&] { return tray.icons().size() == 1; })) << program->report();
    const auto area = tray.iconArea();

    desk.input.click(area.centreX(), area.centreY(), 3);
    xcb_window_t menu = 0;
    ASSERT_TRUE(eventually([&] {
        for (const auto window : desk.windows.unmanagedOf(program->process()))
            if (desk.windows.areaOf(window).y < 100)
                menu = window;
        return menu != 0;
    })) << program->report();
    const auto menuArea = desk.windows.areaOf(menu);
    desk.input.click(menuArea.centreX(), menuArea.y + menuArea.height - 12);

    EXPECT_TRUE(endsInOrder()) << program->report();
}

TEST_F(ProgramInTray, saysOnceThatThereIsNoTrayAndTakesOneThatComes)
{
    start();

    EXPECT_TRUE(program->logs(absence)) << program->report();
    TrayHost host;
    EXPECT_TRUE(has(host, englishMenu)) << program->report();
    EXPECT_EQ(logged(absence), 1);
}

TEST_F(ProgramInTray, goesOnWhileThePanelSaysNothing)
{
    const TrayHost host;
    desk.applyRules({{"Alpha", german}});
    start();

    // The panel works only while it is asked something, and is not asked here.
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program->report();
    EXPECT_EQ(program->quit(), (ProcessEnd{0, {}})) << program->report();
}

} // namespace
} // namespace brindlex
