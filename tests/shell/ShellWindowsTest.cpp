#include "shell/ShellWindows.h"

#include "platform/simulated/SimulatedComputer.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::string showsDockIconKey = "showsDockIcon";

/// Windows that follow what is written to the preferences, as in the program.
class ShellWindowsTest : public testing::Test {
protected:
    ShellWindowsTest() { windows.addScene("main"), windows.addScene("logs"); }

    ActivationPolicy policy() const { return computer.activationPolicy.activationPolicy(); }
    std::vector<std::string> policies()
    {
        std::vector<std::string> set;
        for (const auto& entry : journal.take())
            if (entry.starts_with("policy "))
                set.push_back(entry);
        return set;
    }

    SimulatedJournal journal;
    SimulatedComputer computer{{.journal = &journal}};
    SimulatedProgramWindows& windows = computer.programWindows;
};

TEST_F(ShellWindowsTest, openTheMainWindowWhereThereIsOne)
{
    ShellWindows shell(computer.platform());

    shell.mainWindow().showMainWindow();

    EXPECT_TRUE(windows.isInFront(*windows.window("main")));
    SimulatedComputer other;
    EXPECT_FALSE(ShellWindows(other.platform()).mainWindow().hasMainWindow());
}

TEST_F(ShellWindowsTest, followThePreference)
{
    ShellWindows shell(computer.platform());
    EXPECT_EQ(shell.applyDockPolicy(), (DockIconPolicyResult{true, true}));

    computer.defaults.set(showsDockIconKey, false);
    EXPECT_EQ(shell.applyDockPolicy(), (DockIconPolicyResult{true, false}));

    EXPECT_EQ(policy(), ActivationPolicy::accessory);
}

TEST_F(ShellWindowsTest, applyThePreferenceAgainWhenAnAuxiliaryWindowIsClosed)
{
    ShellWindows shell(computer.platform());
    shell.applyDockPolicy();
    shell.auxiliaryWindows().present("logs");
    computer.defaults.set(showsDockIconKey, false);

    windows.close(*windows.window("logs"));

    EXPECT_EQ(policy(), ActivationPolicy::accessory);
}

TEST_F(ShellWindowsTest, keepTheMainWindowInFrontWhenTheUserTakesTheIconAway)
{
    ShellWindows shell(computer.platform());
    const auto observer = computer.defaults.observeChanges([&] { shell.reload(); });
    shell.applyDockPolicy();
    shell.mainWindow().showMainWindow();
    journal.take();

    shell.setShowsDockIcon(false);
    windows.goElsewhere();
    computer.mainThread.advance(0.15);

    EXPECT_EQ(computer.defaults.value(showsDockIconKey), PreferenceValue(false));
    EXPECT_TRUE(windows.isInFront(*windows.window("main")));
    EXPECT_EQ(policies(), std::vector<std::string>{"policy accessory"});
}

TEST_F(ShellWindowsTest, showTheMainWindowWhenTheUserWantsTheIcon)
{
    ShellWindows shell(computer.platform());
    const auto observer = computer.defaults.observeChanges([&] { shell.reload(); });
    computer.defaults.set(showsDockIconKey, false);
    shell.applyDockPolicy();

    shell.setShowsDockIcon(true);
    computer.mainThread.advance(60);

    EXPECT_EQ(policy(), ActivationPolicy::regular);
    EXPECT_TRUE(windows.isInFront(*windows.window("main")));
}

TEST_F(ShellWindowsTest, followWhatAnotherProcessWritesAndShowNothing)
{
    computer.defaults.set(showsDockIconKey, false);
    ShellWindows shell(computer.platform());
    const auto observer = computer.defaults.observeChanges([&] { shell.reload(); });
    shell.applyDockPolicy();
    journal.take();

    computer.defaults.set(showsDockIconKey, true);
    computer.mainThread.advance(60);
    EXPECT_EQ(policies(), std::vector<std::string>{"policy regular"});
    EXPECT_EQ(windows.window("main"), std::nullopt);

    computer.defaults.set("another", true);
    computer.mainThread.advance(60);
    EXPECT_EQ(policies(), std::vector<std::string>{});
}

TEST_F(ShellWindowsTest, waitWithThePreferenceForTheStart)
{
    ShellWindows shell(computer.platform());
    computer.defaults.set(showsDockIconKey, false);

    shell.reload();
    computer.mainThread.advance(60);

    EXPECT_EQ(policies(), std::vector<std::string>{});
}

} // namespace
} // namespace brindlex
