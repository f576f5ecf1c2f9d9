#include "desktop/MouseDesk.h"
#include "desktop/ProgramDesk.h"
#include "support/bus/BusConnection.h"
#include "support/processes/CommandOutput.h"
#include "support/processes/Installation.h"
#include "support/processes/ProcessTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace brindlex {
namespace {

/// Installed as one user does it for oneself alone.
Installation installFor(const VirtualDesktop& desktop)
{
    return Installation(desktop.home() / ".local");
}

/// The value of a key of the program's entry in the menus.
std::string entryValue(const Installation& installation, const std::string& key)
{
    std::istringstream entry(
        contentOf(installation.dataFolder() / "applications/com.brindlex.Brindlex.desktop"));
    for (std::string line; std::getline(entry, line);)
        if (line.starts_with(key + "="))
            return line.substr(key.size() + 1);
    return {};
}

/// Waits for the window of the program, which is in front of all others.
bool hasWindowInFront()
{
    const XConnection server;
    const DesktopWindows windows(server);
    return eventually(
        [&] { return windows.active() && windows.classOf(windows.active()) == "Brindlex"; });
}

std::vector<std::filesystem::path> filesOfChildren(pid_t process)
{
    std::vector<std::filesystem::path> files;
    for (const auto child : childrenOf(process))
        files.push_back(fileOf(child));
    return files;
}

TEST(InstalledProgram, runsWithTheOthersBesideIt)
{
    MouseDesk desk;
    const auto installation = installFor(desk.desktop);
    desk.set(everything());
    desk.program.emplace(desk.desktop, std::vector<std::string>{}, installation.program());
    ASSERT_TRUE(desk.program->launches()) << desk.program->report();

    const auto folder = installation.programFolder();
    EXPECT_EQ(fileOf(desk.program->process()), folder / "brindlex");
    EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); })) << desk.program->report();
    EXPECT_TRUE(eventually([&] {
        return filesOfChildren(desk.program->process())
            == std::vector{folder / "brindlex-watchdog"};
    })) << desk.program->report();
    EXPECT_EQ(::access((folder / "brindlex-fetch").c_str(), X_OK), 0);
    EXPECT_EQ(desk.program->quit(), (ProcessEnd{0, {}})) << desk.program->report();
}

TEST(InstalledProgram, hasWindowsThatBelongToItsEntry)
{
    const ProgramDesk desk;
    const auto installation = installFor(desk.desktop);

    const RunningProgram program(desk.desktop, {}, installation.program());

    const auto windowClass = entryValue(installation, "StartupWMClass");
    EXPECT_TRUE(eventually([&] { return desk.windows.withClass(windowClass).has_value(); }))
        << program.report();
}

TEST(InstalledProgram, isStartedByItsEntry)
{
    VirtualDesktop desktop;
    const auto installation = installFor(desktop);
    const auto program = entryValue(installation, "Exec");
    EXPECT_EQ(entryValue(installation, "TryExec"), program);
    desktop.setVariable("PATH", (installation.prefix() / "bin").string());

    const RunningProgram running(desktop, {}, program);

    EXPECT_TRUE(running.launches()) << running.report();
    EXPECT_EQ(fileOf(running.process()), installation.programFolder() / "brindlex");
    EXPECT_TRUE(hasWindowInFront()) << running.report();
}

TEST(InstalledProgram, isShownByItsEntryWhenTheDesktopHasStartedIt)
{
    VirtualDesktop desktop;
    const auto installation = installFor(desktop);
    desktop.setVariable("PATH", (installation.prefix() / "bin").string());
    const RunningProgram running(desktop, {"--started-at-login"}, installation.program());
    ASSERT_TRUE(running.launches()) << running.report();

    const RunningProgram clicked(desktop, {}, entryValue(installation, "Exec"));

    EXPECT_TRUE(hasWindowInFront()) << running.report();
    EXPECT_EQ(clicked.child().waitForEnd(std::chrono::seconds(10)), (ProcessEnd{0, {}}));
    EXPECT_TRUE(running.child().isRunning());
}

TEST(InstalledProgram, isStartedByTheBusUnderItsName)
{
    const VirtualDesktop desktop;
    const auto installation = installFor(desktop);

    // The bus replies as soon as the program has its name.
    const auto reply
        = outputOf({"dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
            "/org/freedesktop/DBus", "org.freedesktop.DBus.StartServiceByName",
            std::string("string:") + programBusName, "uint32:0"});

    EXPECT_EQ(reply.status, 0) << reply.text << desktop.output();
    const auto process = BusConnection().processOf(programBusName);
    ASSERT_TRUE(process);
    EXPECT_EQ(fileOf(*process), installation.programFolder() / "brindlex");
    EXPECT_TRUE(eventually([&] {
        const auto messages = ProgramFiles(desktop).logMessages();
        return std::ranges::count(messages, "Brindlex launched") == 1;
    }));
    EXPECT_TRUE(hasWindowInFront()) << desktop.output();
}

TEST(InstalledProgram, doesNotStartAtLoginByItself)
{
    const VirtualDesktop desktop;
    const auto installation = installFor(desktop);
    RunningProgram program(desktop, {}, installation.program());
    ASSERT_TRUE(program.launches()) << program.report();
    ASSERT_EQ(program.quit(), (ProcessEnd{0, {}})) << program.report();

    EXPECT_FALSE(std::filesystem::exists(installation.prefix() / "etc"));
    EXPECT_FALSE(std::filesystem::exists(desktop.configFolder() / "autostart"));
}

} // namespace
} // namespace brindlex
