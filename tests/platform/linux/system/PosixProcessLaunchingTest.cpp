#include "platform/linux/system/PosixProcessLaunching.h"

#include "platform/linux/system/QtMainThread.h"
#include "support/basics/Eventually.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/ScopedEnvironment.h"
#include "support/basics/TemporaryFolder.h"
#include "support/loops/LoopUntil.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace brindlex {
namespace {

/// A pipe that nobody reads, in place of the standard output of this process.
class UnreadOutput {
public:
    UnreadOutput() : own_(dup(STDOUT_FILENO))
    {
        EXPECT_EQ(pipe(ends_.data()), 0);
        dup2(ends_[1], STDOUT_FILENO);
        ::close(ends_[1]);
    }
    ~UnreadOutput()
    {
        giveBack();
        ::close(own_);
        ::close(ends_[0]);
    }
    UnreadOutput(const UnreadOutput&) = delete;
    UnreadOutput& operator=(const UnreadOutput&) = delete;

    /// This process has its output again; those that it started keep the pipe.
    void giveBack() const { dup2(own_, STDOUT_FILENO); }

private:
    int own_;
    std::array<int, 2> ends_{};
};

bool isGone(pid_t process) { return kill(process, 0) == -1 && errno == ESRCH; }

bool hasNoChild()
{
    siginfo_t ended{};
    return waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT) == -1 && errno == ECHILD;
}

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

TEST_F(PosixProcessLaunchingTest, saysWhichCommandsNameNoProgram)
{
    const RecordedLog log;
    launching_.launch("/bin/sh", {"-c", "exit 1"}, note());
    launching_.launch("/bin/sh", {"-c", "no-such-program --at all"}, note());
    EXPECT_TRUE(loopUntil([&] { return log.lines().size() == 1; }));
    launching_.launch("/bin/sh", {"-c", "/etc/passwd"}, note());
    EXPECT_TRUE(loopUntil([&] { return log.lines().size() == 2; }));

    EXPECT_EQ(log.lines(),
        (std::vector<std::string>{
            "WARN [mouse] A command has named a program that is not to be found",
            "WARN [mouse] A command has named a program that cannot be run"}));
    EXPECT_EQ(reasons_, std::vector<std::string>());
}

TEST_F(PosixProcessLaunchingTest, leavesNoProcessBehind)
{
    const auto process = std::stoi(outputOf("exec sh -c 'echo $$'"));

    EXPECT_TRUE(eventually([&] { return isGone(process); }));
}

TEST_F(PosixProcessLaunchingTest, leavesNoneOfManyProcessesBehind)
{
    for (int count = 0; count < 50; ++count)
        launching_.launch("/bin/sh", {"-c", "echo >>'" + file().string() + "'"}, note());

    EXPECT_TRUE(loopUntil([&] { return contentOf(file()) == std::string(50, '\n'); }));
    EXPECT_TRUE(eventually(hasNoChild));
    EXPECT_EQ(reasons_, std::vector<std::string>());
}

TEST_F(PosixProcessLaunchingTest, isHeldUpByNoProgramThatFloodsItsOutput)
{
    pid_t flooding = 0;
    {
        const UnreadOutput unread;
        launching_.launch(
            "/bin/sh", {"-c", "echo $$ >'" + file().string() + "'; exec yes"}, note());
        const bool hasStarted = eventually([&] { return contentOf(file()).ends_with("\n"); });
        unread.giveBack();
        ASSERT_TRUE(hasStarted);
        flooding = std::stoi(contentOf(file()));

        std::filesystem::remove(file());
        EXPECT_EQ(outputOf("echo the next"), "the next\n");
        EXPECT_FALSE(isGone(flooding));
    }
    // Its first word after the end of the pipe is its last.
    EXPECT_TRUE(eventually([&] { return isGone(flooding); }));
    EXPECT_EQ(reasons_, std::vector<std::string>());
}

TEST_F(PosixProcessLaunchingTest, waitsForNoProgramThatRunsForEver)
{
    {
        PosixProcessLaunching launching(mainThread_);
        launching.launch(
            "/bin/sh", {"-c", "echo $$ >'" + file().string() + "'; exec sleep 100000"}, note());
    }
    ASSERT_TRUE(eventually([&] { return contentOf(file()).ends_with("\n"); }));
    const auto process = std::stoi(contentOf(file()));

    EXPECT_FALSE(isGone(process));
    kill(process, SIGKILL);
    EXPECT_TRUE(eventually([&] { return isGone(process); }));
}

TEST_F(PosixProcessLaunchingTest, startsTheProgramWithTheSignalsOfANewProcess)
{
    auto* const before = signal(SIGPIPE, SIG_IGN);
    sigset_t some;
    sigemptyset(&some);
    sigaddset(&some, SIGUSR1);
    sigset_t blockedBefore;
    pthread_sigmask(SIG_BLOCK, &some, &blockedBefore);

    const auto blocked = outputOf("grep ^SigBlk: /proc/self/status");
    std::filesystem::remove(file());
    const auto ignored = outputOf("grep ^SigIgn: /proc/self/status");

    pthread_sigmask(SIG_SETMASK, &blockedBefore, nullptr);
    signal(SIGPIPE, before);
    // The two after the last that programs may use belong to the C library.
    constexpr auto known = 0x7FFFFFFFUL;
    EXPECT_EQ(std::stoul(blocked.substr(blocked.find('\t') + 1), nullptr, 16), 0U);
    EXPECT_EQ(std::stoul(ignored.substr(ignored.find('\t') + 1), nullptr, 16) & known, 0U);
}

TEST_F(PosixProcessLaunchingTest, tellsOfEveryProgramThatIsNone)
{
    const auto nonsense = folder_.path() / "nonsense";
    write(nonsense,
        "\x7f"
        "ELF and no more");
    std::filesystem::permissions(nonsense, std::filesystem::perms::owner_all);

    launching_.launch(nonsense, {}, note());
    launching_.launch(folder_.path(), {}, note());
    launching_.launch("", {}, note());
    launching_.launch("/bin/sh", {"-c", std::string(4'000'000, 'x')}, note());

    EXPECT_TRUE(loopUntil([&] { return reasons_.size() == 4; }));
    EXPECT_EQ(reasons_,
        (std::vector<std::string>{"Exec format error", "Permission denied",
            "No such file or directory", "Argument list too long"}));
    EXPECT_TRUE(hasNoChild());
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
