#include "platform/linux/PosixProcessLaunching.h"

#include "platform/linux/QtMainThread.h"
#include "support/Eventually.h"
#include "support/LoopUntil.h"
#include "support/ScopedEnvironment.h"
#include "support/TemporaryFolder.h"

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

class PosixProcessLaunchingTest : public testing::Test {
protected:
    /// Runs the text with the shell, which writes to the file.
    std::string outputOf(const std::string& text, const std::string& shell = "/bin/sh")
    {
        launching_.launch(shell, {"-c", "(" + text + ") >'" + file().string() + "' 2>&1"}, note());
        EXPECT_TRUE(loopUntil([&] { return contentOf(file()).ends_with("\n"); }));
        return contentOf(file());
    }

    ProcessLaunching::Failed note()
    {
        return [this](const std::string& reason) { reasons_.push_back(reason); };
    }
    std::filesystem::path file() const { return folder_.path() / "output"; }

    TemporaryFolder folder_;
    QtMainThread mainThread_;
    std::vector<std::string> reasons_;
    PosixProcessLaunching launching_{mainThread_};
};

TEST_F(PosixProcessLaunchingTest, startsTheProgramWithItsArguments)
{
    launching_.launch("/bin/sh",
        {"-c", "echo \"$1|$2\" >'" + file().string() + "'", "name", "a b", "“ü”\n"}, note());

    EXPECT_TRUE(eventually([&] { return contentOf(file()) == "a b|“ü”\n\n"; }));
    EXPECT_EQ(reasons_, std::vector<std::string>());
}

TEST_F(PosixProcessLaunchingTest, tellsFromTheLoopWhyAProgramCannotBeStarted)
{
    launching_.launch("/nowhere/program", {}, note());
    launching_.launch("/etc/passwd", {}, note());

    EXPECT_TRUE(loopUntil([&] { return reasons_.size() == 2; }));
    EXPECT_EQ(
        reasons_, (std::vector<std::string>{"No such file or directory", "Permission denied"}));
}

TEST_F(PosixProcessLaunchingTest, leavesNoProcessBehind)
{
    const auto process = std::stoi(outputOf("exec sh -c 'echo $$'"));

    EXPECT_TRUE(eventually([&] { return kill(process, 0) == -1 && errno == ESRCH; }));
}

TEST_F(PosixProcessLaunchingTest, keepsTheProgramsDescriptorsToItself)
{
    EXPECT_EQ(outputOf("for file in /proc/self/fd/*; do test $(basename $file) -gt 2 && readlink "
                       "$file; done | grep -E 'socket|pipe|eventfd'; echo end"),
        "end\n");
}

TEST_F(PosixProcessLaunchingTest, startsTheProgramInASessionOfItsOwn)
{
    const auto session = std::stol(outputOf("cut -d' ' -f6 /proc/self/stat"));

    EXPECT_NE(session, getsid(0));
}

TEST_F(PosixProcessLaunchingTest, takesTheUsersShellWhereTheShellOfAMacIsMissing)
{
    if (access("/bin/zsh", X_OK) == 0) {
        EXPECT_EQ(outputOf("echo ${ZSH_VERSION:+zsh}", "/bin/zsh"), "zsh\n");
        return;
    }
    ScopedEnvironment shell;
    shell.set("SHELL", "/bin/bash");
    EXPECT_EQ(outputOf("echo ${BASH_VERSION:+bash}", "/bin/zsh"), "bash\n");
}

TEST_F(PosixProcessLaunchingTest, takesTheSystemsShellWhereTheUsersCannotBeRun)
{
    if (access("/bin/zsh", X_OK) == 0)
        return;
    ScopedEnvironment shell;
    shell.set("SHELL", "/nowhere/shell");
    EXPECT_EQ(outputOf("echo still here", "/bin/zsh"), "still here\n");
}

TEST_F(PosixProcessLaunchingTest, startsWhatWasAskedForBeforeItEnds)
{
    {
        PosixProcessLaunching launching(mainThread_);
        for (int count = 0; count < 10; ++count)
            launching.launch("/bin/sh", {"-c", "echo >>'" + file().string() + "'"}, note());
    }
    EXPECT_TRUE(eventually([&] { return contentOf(file()) == std::string(10, '\n'); }));
}

} // namespace
} // namespace brindlex
