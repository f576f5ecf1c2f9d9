#include "app/AppLifecycleCoordinator.h"

#include "app/SimulatedProgram.h"
#include "shell/MenuBarMenu.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// A program with a main window, launched by the desktop.
struct AppLifecycleCoordinatorMenuBar : testing::Test, SimulatedProgram {
    void launch()
    {
        lifecycle.start();
        lifecycle.didFinishLaunching(true);
        journal.take();
    }
    void chooseInMenuBar(MenuBarItem item) { computer.statusItem.choose(static_cast<int>(item)); }
};

TEST_F(AppLifecycleCoordinatorMenuBar, hasTheIconOnceItIsLaunchedAndNoWindow)
{
    computer.programWindows.addScene("main");
    lifecycle.start();
    EXPECT_EQ(computer.statusItem.contents(), std::nullopt);

    lifecycle.didFinishLaunching(true);

    ASSERT_TRUE(computer.statusItem.contents());
    EXPECT_EQ(computer.statusItem.contents()->title, "Program");
    EXPECT_EQ(computer.programWindows.window("main"), std::nullopt);
}

TEST_F(AppLifecycleCoordinatorMenuBar, opensTheMainWindow)
{
    computer.programWindows.addScene("main");
    launch();

    chooseInMenuBar(MenuBarItem::openApp);
    EXPECT_EQ(journal.take(),
        (std::vector<std::string>{"log INFO [lifecycle] Asked to show the main window", "open main",
            "bring forward main"}));

    computer.programWindows.goElsewhere();
    computer.statusItem.click();
    EXPECT_EQ(journal.take(),
        (std::vector<std::string>{
            "log INFO [lifecycle] Asked to show the main window", "bring forward main"}));
}

TEST_F(AppLifecycleCoordinatorMenuBar, showsItsNameWhereThereIsNoWindow)
{
    launch();

    chooseInMenuBar(MenuBarItem::openApp);

    EXPECT_EQ(computer.overlayPanel.text(), "Brindlex");
}

TEST_F(AppLifecycleCoordinatorMenuBar, quitsByWayOfTheLoop)
{
    launch();

    chooseInMenuBar(MenuBarItem::quitApp);

    EXPECT_EQ(journal.take(), std::vector<std::string>{"terminate"});
    EXPECT_TRUE(computer.instances.isTerminating());
    lifecycle.stop();
    EXPECT_EQ(journal.take().back(), "hide icon");
    EXPECT_EQ(computer.statusItem.contents(), std::nullopt);
}

TEST_F(AppLifecycleCoordinatorMenuBar, speaksTheLanguageOfThePreference)
{
    shared.preferences().write(
        &UserDefaultPreferenceKeys::languagePreference, LanguagePreference::de);

    launch();

    EXPECT_EQ(computer.statusItem.contents()->menu, menuBarMenu(StringCatalogue("de"), false));
}

} // namespace
} // namespace brindlex
