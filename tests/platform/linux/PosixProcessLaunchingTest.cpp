#include "platform/linux/PosixProcessLaunching.h"

#include "foundation/FileHandle.h"
#include "support/Eventually.h"
#include "support/ScopedEnvironment.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace brindlex {
namespace {

using Answer = Result<Done, std::string>;

/// Launches shell commands that leave what they have to say in a file.
struct LaunchedShell {
    Answer run(const std::string& command)
    {
        const auto text = "{ " + command + "; } >" + output().string() + ".part; mv "
            + output().string() + ".part " + output().string();
        return launching.launch("/bin/sh", {"-c", text});
    }

    std::filesystem::path output() const { return folder.path() / "said"; }

    /// What it has said; waits until it has said all.
    std::string said() const
    {
        eventually([this] { return exists(output()); });
        return contentOf(output());
    }

    TemporaryFolder folder;
    PosixProcessLaunching launching;
};

std::filesystem::path processFolder(const std::string& process) { return "/proc/" + process; }

TEST(PosixProcessLaunching, handsTheArgumentsOverAsTheyAre)
{
    LaunchedShell shell;
    const auto file = shell.output().string();
    EXPECT_EQ(shell.launching.launch(
                  "/bin/sh", {"-c", "printf '%s|' \"$@\" >\"$0\"", file, "a b", "", "$HOME", "ü*"}),
        Answer(Done{}));
    EXPECT_TRUE(eventually([&] { return shell.said() == "a b||$HOME|ü*|"; })) << shell.said();
}

TEST(PosixProcessLaunching, doesNotWaitForTheProcess)
{
    LaunchedShell shell;
    const auto signal = shell.folder.path() / "go on";
    EXPECT_EQ(shell.run("until [ -e '" + signal.string() + "' ]; do sleep 0.01; done; echo done"),
        Answer(Done{}));
    EXPECT_FALSE(exists(shell.output()));
    write(signal, "");
    EXPECT_EQ(shell.said(), "done\n");
}

TEST(PosixProcessLaunching, leavesNothingBehindWhenTheProcessEnds)
{
    LaunchedShell shell;
    ASSERT_EQ(shell.run("printf $$"), Answer(Done{}));
    const auto process = shell.said();
    EXPECT_TRUE(eventually([&] { return !exists(processFolder(process)); })) << process;
}

TEST(PosixProcessLaunching, leavesNothingBehindOfManyThatEndAtOnce)
{
    LaunchedShell shell;
    constexpr int count = 50;
    const auto list = shell.folder.path() / "list";
    for (int process = 0; process < count; ++process)
        ASSERT_EQ(shell.launching.launch("/bin/sh", {"-c", "echo $$ >>" + list.string()}),
            Answer(Done{}));
    const auto processes = [&] {
        std::vector<std::string> lines;
        std::istringstream text(contentOf(list));
        for (std::string line; std::getline(text, line);)
            lines.push_back(line);
        return lines;
    };
    ASSERT_TRUE(eventually([&] { return processes().size() == count; }));
    for (const auto& process : processes())
        EXPECT_TRUE(eventually([&] { return !exists(processFolder(process)); })) << process;
}

TEST(PosixProcessLaunching, givesTheProcessASessionOfItsOwn)
{
    LaunchedShell shell;
    ASSERT_EQ(shell.run("read -r pid name state parent group session rest </proc/$$/stat; "
                        "[ $session = $$ ] && [ $group = $$ ] && echo own"),
        Answer(Done{}));
    EXPECT_EQ(shell.said(), "own\n");
}

TEST(PosixProcessLaunching, keepsItsOwnDescriptorsToItself)
{
    LaunchedShell shell;
    constexpr int number = 77;
    // A library's, which forgot to close it for others.
    ASSERT_EQ(dup2(STDERR_FILENO, number), number);
    const FileHandle leaking(number);
    ASSERT_EQ(shell.run("for fd in 1 2 77; do [ -e /proc/$$/fd/$fd ] && echo $fd; done; true"),
        Answer(Done{}));
    EXPECT_EQ(shell.said(), "1\n2\n");
}

TEST(PosixProcessLaunching, givesTheProcessItsSignalsBack)
{
    LaunchedShell shell;
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    sigset_t before;
    sigprocmask(SIG_BLOCK, &blocked, &before);
    auto* const pipeBefore = std::signal(SIGPIPE, SIG_IGN);
    // Without the two signals that the C library keeps to itself.
    const auto answer = shell.run("while read -r key value; do case $key in "
                                  "SigBlk:) echo blocked $((0x$value));; "
                                  "SigIgn:) echo ignored $((0x$value & 0x7fffffff));; "
                                  "esac; done </proc/$$/status");
    std::signal(SIGPIPE, pipeBefore);
    sigprocmask(SIG_SETMASK, &before, nullptr);

    ASSERT_EQ(answer, Answer(Done{}));
    EXPECT_EQ(shell.said(), "blocked 0\nignored 0\n");
}

TEST(PosixProcessLaunching, saysInTheSystemsWordsWhyItCannotStart)
{
    LaunchedShell shell;
    const auto plainFile = shell.folder.path() / "plain";
    write(plainFile, "");
    EXPECT_EQ(shell.launching.launch("/no/such/program", {}),
        Answer(fail(std::string("No such file or directory"))));
    EXPECT_EQ(
        shell.launching.launch(plainFile, {}), Answer(fail(std::string("Permission denied"))));
}

TEST(PosixProcessLaunching, takesTheShellOfTheUserWhereTheOneOfAMacIsMissing)
{
    LaunchedShell shell;
    ScopedEnvironment environment;
    environment.set("SHELL", "/bin/bash");
    const bool isThere = access("/bin/zsh", X_OK) == 0;
    ASSERT_EQ(shell.launching.launch("/bin/zsh", {"-c", "echo $0 >" + shell.output().string()}),
        Answer(Done{}));
    const std::string expected = isThere ? "/bin/zsh\n" : "/bin/bash\n";
    EXPECT_TRUE(eventually([&] { return shell.said() == expected; })) << shell.said();
}

TEST(PosixProcessLaunching, takesThePlainShellWhereThatOfTheUserCannotBeRun)
{
    LaunchedShell shell;
    ScopedEnvironment environment;
    const bool isThere = access("/bin/zsh", X_OK) == 0;
    const std::string expected = isThere ? "/bin/zsh\n" : "/bin/sh\n";
    for (const auto& unusable : {"/no/such/shell", "sh", "/etc/passwd", ""}) {
        environment.set("SHELL", unusable);
        ASSERT_EQ(shell.launching.launch("/bin/zsh", {"-c", "echo $0 >" + shell.output().string()}),
            Answer(Done{}));
        EXPECT_TRUE(eventually([&] { return shell.said() == expected; })) << unusable;
        std::filesystem::remove(shell.output());
    }
}

} // namespace
} // namespace brindlex
