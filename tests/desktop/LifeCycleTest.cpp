#include "desktop/ProgramDesk.h"
#include "support/bus/BusConnection.h"
#include "support/bus/BusSignals.h"
#include "support/bus/SilentBus.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto timeToEnd = 10s;

TEST(LifeCycle, startsOnAFreshDesktopAndSaysSo)
{
    const ProgramDesk desk;
    const RunningProgram program(desk.desktop);

    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_EQ(BusConnection().processOf(programBusName), program.process());
    EXPECT_TRUE(std::filesystem::is_directory(desk.files.container() / "Config"));
    EXPECT_TRUE(std::filesystem::is_directory(desk.files.container() / "Pending"));
    EXPECT_EQ(std::filesystem::status(desk.files.container()).permissions(),
        std::filesystem::perms::owner_all);
}

TEST(LifeCycle, seedsThePreferencesOfANewUser)
{
    const ProgramDesk desk;
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    const std::vector<std::string> keys{"baiduOCRAPIToken", "clipboardAutoPaste",
        "clipboardHistoryEnabled", "clipboardHotkey", "clipboardMaxItems", "inputMethodConfig",
        "languagePreference", "launchAtLogin", "mouseConfig", "screenshotHotkey",
        "screenshotSaveDirectoryPath", "selectedMainWindowTab",
        "shouldRestoreFocusAfterLanguageRelaunch", "showsDockIcon", "smartInputMethodConfig"};
    EXPECT_TRUE(eventually([&] {
        const auto preferences = desk.files.readPreferences();
        return std::all_of(
            keys.begin(), keys.end(), [&](const auto& key) { return preferences.contains(key); });
    })) << contentOf(desk.files.preferences());
}

TEST(LifeCycle, endsInOrderWhenAskedTo)
{
    const ProgramDesk desk;
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();

    EXPECT_EQ(program.messages().back(), "Brindlex will terminate") << program.report();
    EXPECT_FALSE(BusConnection().hasOwner(programBusName));
}

TEST(LifeCycle, endsInOrderWhenTheTerminalInterruptsIt)
{
    const ProgramDesk desk;
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    program.child().signal(SIGINT);

    EXPECT_EQ(program.child().waitForEnd(timeToEnd), (ProcessEnd{0, {}})) << program.report();
    EXPECT_EQ(program.messages().back(), "Brindlex will terminate") << program.report();
}

TEST(LifeCycle, endsInOrderHoweverOftenItIsAskedTo)
{
    const ProgramDesk desk;
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(eventually([&] {
        program.child().signal(SIGTERM);
        return !program.child().isRunning();
    }));

    EXPECT_EQ(program.child().end(), (ProcessEnd{0, {}})) << program.report();
    EXPECT_EQ(program.messages().back(), "Brindlex will terminate") << program.report();
}

TEST(LifeCycle, leavesTheStageToTheInstanceThatIsThere)
{
    const ProgramDesk desk;
    BusSignals signals("com.brindlex.Brindlex.Notifications");
    const RunningProgram first(desk.desktop);
    ASSERT_TRUE(first.launches()) << first.report();

    const RunningProgram second(desk.desktop);

    EXPECT_EQ(second.child().waitForEnd(timeToEnd), (ProcessEnd{0, {}})) << second.report();
    EXPECT_EQ(second.child().output(),
        "brindlex: Brindlex runs already, as process " + std::to_string(first.process()) + "\n");
    const std::vector<std::string> showRequest{
        "Posted", "com.brindlex.Brindlex.showMainWindow", programBusName};
    EXPECT_TRUE(eventually([&] {
        const auto& received = signals.received();
        return std::find(received.begin(), received.end(), showRequest) != received.end();
    }));
    EXPECT_TRUE(first.child().isRunning());
    EXPECT_EQ(BusConnection().processOf(programBusName), first.process());
    const auto messages = first.messages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "Brindlex launched"), 1)
        << first.report();
}

TEST(LifeCycle, leavesOneOfManyThatAreStartedAtOnce)
{
    const ProgramDesk desk;
    std::vector<std::unique_ptr<RunningProgram>> programs;
    for (int index = 0; index < 6; ++index)
        programs.push_back(std::make_unique<RunningProgram>(desk.desktop));
    const auto running = [&] {
        return std::count_if(programs.begin(), programs.end(),
            [](const auto& program) { return program->child().isRunning(); });
    };

    EXPECT_TRUE(eventually([&] { return running() == 1; })) << desk.desktop.output();

    EXPECT_TRUE(throughout(500ms, [&] { return running() == 1; })) << desk.desktop.output();
    const auto messages = desk.files.logMessages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "Brindlex launched"), 1);
}

TEST(LifeCycle, startsAgainAfterItWasKilled)
{
    const ProgramDesk desk;
    RunningProgram first(desk.desktop);
    ASSERT_TRUE(first.launches()) << first.report();
    first.kill();

    const RunningProgram second(desk.desktop);

    EXPECT_TRUE(second.launches()) << second.report();
    EXPECT_EQ(BusConnection().processOf(programBusName), second.process());
}

TEST(LifeCycle, endsInOrderWhenTheScreenGoes)
{
    ProgramDesk desk;
    const RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    desk.desktop.endDisplayServer();

    const auto end = program.child().waitForEnd(timeToEnd);
    ASSERT_TRUE(end) << program.report();
    EXPECT_EQ(*end, (ProcessEnd{1, {}})) << program.report();
    const auto messages = program.messages();
    ASSERT_GE(messages.size(), 2u) << program.report();
    EXPECT_EQ(messages[messages.size() - 2], "Brindlex will terminate") << program.report();
    EXPECT_EQ(messages.back(), "The X server has gone away; Brindlex has ended");
}

TEST(LifeCycle, goesOnWithoutTheSessionBusThatWentAway)
{
    ProgramDesk desk;
    desk.applyRules({{"Alpha", german}});
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    desk.desktop.endSessionBus();
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

TEST(LifeCycle, startsWithoutASessionBusThatSaysNothing)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .sessionBus = false});
    const SilentBus silent;
    desk.desktop.setVariable("DBUS_SESSION_BUS_ADDRESS", silent.address());
    desk.applyRules({{"Alpha", german}});
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_TRUE(program.logs("No session bus: other instances are not known"));
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

TEST(LifeCycle, keepsItsStandardDescriptorsClearWhenItIsStartedWithoutThem)
{
    const ProgramDesk desk;
    const ChildProcess shell(
        {.command = {"sh", "-c", "exec '" + programFile().string() + "' <&- >&- 2>&-"}});

    EXPECT_TRUE(eventually([&] {
        const auto messages = desk.files.logMessages();
        return !messages.empty() && messages.back() == "Brindlex launched";
    }));

    for (const auto descriptor : {"0", "1", "2"}) {
        const auto link = "/proc/" + std::to_string(shell.id()) + "/fd/" + descriptor;
        EXPECT_EQ(std::filesystem::read_symlink(link), "/dev/null") << descriptor;
    }
}

TEST(LifeCycle, showsItselfAFewTimesInAFloodOfRequests)
{
    const ProgramDesk desk;
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    const BusConnection bus;
    for (int request = 0; request < 5'000; ++request)
        bus.emit("/com/brindlex/Brindlex/Notifications", "com.brindlex.Brindlex.Notifications",
            "Posted", {"com.brindlex.Brindlex.showMainWindow", programBusName});

    EXPECT_TRUE(program.logs("Asked to show the main window")) << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
    const auto messages = program.messages();
    EXPECT_LE(std::count(messages.begin(), messages.end(), "Asked to show the main window"), 100);
}

TEST(LifeCycle, worksWithoutASessionBus)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .sessionBus = false});
    desk.applyRules({{"Alpha", german}});
    RunningProgram program(desk.desktop);
    ASSERT_TRUE(program.launches()) << program.report();

    for (const auto* loss : {"No session bus: other instances are not known",
             "No session bus: notifications of other processes are not heard"})
        EXPECT_TRUE(program.logs(loss)) << program.report();
    const TypingWindow alpha(desk.windows, "Alpha");
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(desk.usesGroup(germanGroup)) << program.report();
    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

TEST(LifeCycle, worksWithoutAWindowManager)
{
    ProgramDesk desk({.keyboardLayouts = "us,de,ru", .windowManager = WindowManager::none});
    RunningProgram program(desk.desktop);

    ASSERT_TRUE(program.launches()) << program.report();

    EXPECT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();
}

TEST(LifeCycle, saysWhyItCannotStartWithoutAScreen)
{
    ProgramDesk desk;
    desk.desktop.endDisplayServer();

    const RunningProgram program(desk.desktop);

    const auto end = program.child().waitForEnd(timeToEnd);
    ASSERT_TRUE(end) << program.report();
    EXPECT_EQ(end->signal, std::nullopt) << program.report();
    EXPECT_NE(end->code, 0) << program.report();
    const std::string words = "No X server can be reached; DISPLAY has to name one";
    EXPECT_EQ(program.child().output(), "brindlex: " + words + "\n");
    EXPECT_EQ(program.messages(), std::vector{words});
}

} // namespace
} // namespace brindlex
