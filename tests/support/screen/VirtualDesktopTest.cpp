#include "support/screen/VirtualDesktop.h"

#include "support/basics/Eventually.h"
#include "support/processes/ProcessTable.h"
#include "support/screen/XConnection.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace brindlex {
namespace {

using namespace std::literals;

std::string variable(const char* name)
{
    const auto value = std::getenv(name);
    return value ? value : "(none)";
}

TEST(VirtualDesktop, hasAScreenAWindowManagerAndABus)
{
    const VirtualDesktop desktop;

    const XConnection server;
    EXPECT_EQ(server.screen().width_in_pixels, 1280);
    EXPECT_EQ(server.screen().height_in_pixels, 800);
    const auto check = server.values(server.root(), "_NET_SUPPORTING_WM_CHECK");
    ASSERT_EQ(check.size(), 1u);
    EXPECT_EQ(server.text(check.front(), "_NET_WM_NAME"), "Openbox");
    EXPECT_EQ(run({.command = {"dbus-send", "--session", "--print-reply",
                       "--dest=org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetId"}},
                  5s),
        (ProcessEnd{0, {}}));
}

TEST(VirtualDesktop, hasTheKeyboardLayoutsThatWereAskedFor)
{
    const VirtualDesktop desktop({.keyboardLayouts = "us,de,ru"});

    const XConnection server;
    EXPECT_EQ(server.text(server.root(), "_XKB_RULES_NAMES"), "evdev\0pc105\0us,de,ru\0\0\0"s);
}

TEST(VirtualDesktop, giftsTheProcessesAHomeOfTheirOwnAndTakesItAway)
{
    const auto homeBefore = variable("HOME");
    const auto displayBefore = variable("DISPLAY");
    std::filesystem::path home;
    {
        const VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
        home = desktop.home();
        EXPECT_EQ(variable("HOME"), home);
        EXPECT_EQ(variable("XDG_CONFIG_HOME"), home / ".config");
        EXPECT_TRUE(std::filesystem::is_directory(home / ".local/share"));
    }
    EXPECT_EQ(variable("HOME"), homeBefore);
    EXPECT_EQ(variable("DISPLAY"), displayBefore);
    EXPECT_FALSE(std::filesystem::exists(home));
}

TEST(VirtualDesktop, leavesNoProcessBehind)
{
    std::filesystem::path home;
    {
        const VirtualDesktop desktop({.accessibility = true});
        home = desktop.home();
        EXPECT_FALSE(processesWithVariable("HOME", home).empty());
    }
    EXPECT_TRUE(eventually([&] { return processesWithVariable("HOME", home).empty(); }));
}

TEST(VirtualDesktop, turnsAccessibilityOnWhenAsked)
{
    const VirtualDesktop desktop({.accessibility = true});
    const auto output = desktop.outputFolder() / "answer";

    run({.command = {"dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus",
             "/org/a11y/bus", "org.freedesktop.DBus.Properties.Get", "string:org.a11y.Status",
             "string:IsEnabled"},
            .output = output},
        5s);

    EXPECT_NE(contentOf(output).find("boolean true"), std::string::npos) << contentOf(output);
}

TEST(VirtualDesktop, canLoseItsDisplayServer)
{
    VirtualDesktop desktop({.windowManager = WindowManager::none});
    const XConnection before;
    ASSERT_TRUE(before.isOpen());

    desktop.endDisplayServer();

    before.sync();
    EXPECT_FALSE(before.isOpen());
    EXPECT_FALSE(XConnection().isOpen());
}

TEST(VirtualDesktop, leavesTheNumberOfItsLostServerToNobody)
{
    VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    desktop.endDisplayServer();
    const VirtualDesktop next({.windowManager = WindowManager::none, .sessionBus = false});
    EXPECT_NE(next.display(), desktop.display());
}

} // namespace
} // namespace brindlex
