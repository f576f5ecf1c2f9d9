#include "desktop/ProgramDesk.h"
#include "support/hardware/Keycodes.h"
#include "support/network/SecureServer.h"
#include "support/tray/TrayHost.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

const std::string feed = R"({"version":"1.2.0","date":"2026-11-22",)"
                         R"("notes":"Faster <b>switching</b>.","address":"https://a.example/get"})";

/// A program that has a feed, with a server of the test's behind its address.
class Updates : public testing::Test {
protected:
    Updates()
    {
        desk.files.writePreferences({{"languagePreference", "en"}});
        script("xdg-open", "echo \"$@\" >> \"$HOME/opened\"");
        desk.desktop.setVariable(
            "PATH", desk.desktop.home().string() + ":/usr/local/bin:/usr/bin:/bin");
    }

    void script(const std::string& name, const std::string& text) const
    {
        const auto file = desk.desktop.home() / name;
        write(file, "#!/bin/sh\n" + text + "\n");
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    }
    /// What the address of the feed leads to from now on.
    void publish(const std::string& url) const
    {
        const auto fetcher = programFile().replace_filename("brindlex-fetch").string();
        script("brindlex-fetch",
            "exec '" + fetcher + "' '" + url + "' \"$2\" \"$3\" '" + server.certificate().string()
                + "'");
    }
    void start()
    {
        program.emplace(
            desk.desktop, std::vector<std::string>{"--started-at-login"}, ANNOUNCED_PROGRAM);
        ASSERT_TRUE(program->launches()) << program->report();
        ASSERT_TRUE(eventually([&] { return offersCheck(); })) << program->report();
    }
    bool offersCheck()
    {
        const auto menu = host.menu();
        return !menu.empty() && menu.front() == TrayHost::Entry{"Check for Updates…"};
    }
    void check()
    {
        ASSERT_TRUE(eventually([&] { return offersCheck(); })) << program->report();
        host.choose("Check for Updates…");
    }
    /// Waits for the window to have the keys.
    bool isInFront(const std::string& title) const
    {
        return eventually([&] {
            const auto active = desk.windows.active();
            return active && desk.windows.titleOf(active) == title && desk.windows.hasFocus(active);
        });
    }
    std::size_t windows() const { return desk.windows.managed().size(); }
    void press(std::uint8_t key) const
    {
        desk.input.pressKey(key);
        desk.input.releaseKey(key);
    }

    ProgramDesk desk;
    const SecureServer server;
    TrayHost host;
    std::optional<RunningProgram> program;
};

TEST_F(Updates, showANewerVersionWithoutAnyOtherWindowAndOpenItsPage)
{
    publish(server.content(feed));
    start();
    check();

    ASSERT_TRUE(isInFront("Version 1.2.0 is available")) << program->report();
    EXPECT_EQ(windows(), 1u);
    press(keycode::enter);

    EXPECT_TRUE(eventually([&] {
        return contentOf(desk.desktop.home() / "opened") == "https://a.example/get\n";
    })) << program->report();
    EXPECT_TRUE(eventually([&] { return windows() == 0; }));
    EXPECT_EQ(program->quit(), (ProcessEnd{0, {}})) << program->report();
}

TEST_F(Updates, areLeftByEscape)
{
    publish(server.content(feed));
    start();
    check();
    ASSERT_TRUE(isInFront("Version 1.2.0 is available")) << program->report();

    press(keycode::escape);

    EXPECT_TRUE(eventually([&] { return windows() == 0; }));
    EXPECT_TRUE(program->child().isRunning());
}

TEST_F(Updates, sayWhyTheyAreNotKnownInTheOneWindow)
{
    publish(server.content(feed));
    start();
    check();
    ASSERT_TRUE(isInFront("Version 1.2.0 is available")) << program->report();
    const TypingWindow alpha(desk.windows, "Alpha");

    publish(server.status(404));
    check();

    EXPECT_TRUE(isInFront("Could not check for updates")) << program->report();
    EXPECT_EQ(windows(), 2u);
    EXPECT_TRUE(program->logs("Update check failed: 404"));
}

TEST_F(Updates, areCheckedForOnceAtATime)
{
    publish(server.silence());
    start();

    host.choose("Check for Updates…");

    EXPECT_TRUE(eventually([&] {
        const auto menu = host.menu();
        return !menu.empty() && menu.front() == TrayHost::Entry{"Check for Updates…", false};
    })) << program->report();
    EXPECT_EQ(program->quit(), (ProcessEnd{0, {}})) << program->report();
}

} // namespace
} // namespace brindlex
