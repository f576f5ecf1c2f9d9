#include "log/LogFile.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using LineViews = std::vector<std::string_view>;
using Names = std::vector<std::string>;

class LogFile : public testing::Test {
protected:
    /// Makes a file of this size that takes no space on the disk.
    void makeSparse(std::uintmax_t size) const
    {
        write(file, "old");
        fs::resize_file(file, size);
    }

    fs::path numbered(int number) const { return file.string() + "." + std::to_string(number); }

    Names names() const
    {
        auto names = namesIn(folder.path());
        for (auto& name : names)
            name.erase(0, fileName.size());
        return names;
    }

    const std::string fileName = "com.brindlex.Brindlex.app.log";
    TemporaryFolder folder;
    fs::path file = folder.path() / fileName;
};

TEST_F(LogFile, isMadeForTheUserAloneByTheFirstLine)
{
    appendToLogFile(file, LineViews{"one\n"});

    EXPECT_EQ(contentOf(file), "one\n");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
}

TEST_F(LogFile, growsAtItsEnd)
{
    write(file, "before\n");

    appendToLogFile(file, LineViews{"one\n", "two\n"});
    appendToLogFile(file, LineViews{"three\n"});
    appendToLogFile(file, {});

    EXPECT_EQ(contentOf(file), "before\none\ntwo\nthree\n");
}

TEST_F(LogFile, takesManyAndLongLines)
{
    const std::string longLine = std::string(1'000'000, 'x') + "\n";
    LineViews lines(10'000, "short\n");
    lines[5'000] = longLine;
    std::string expected;
    for (const auto& line : lines)
        expected += line;

    appendToLogFile(file, lines);

    EXPECT_EQ(contentOf(file), expected);
}

TEST_F(LogFile, rotatesAtItsLimitAndNoByteBefore)
{
    makeSparse(52'428'799);
    appendToLogFile(file, LineViews{"x\n"});
    EXPECT_EQ(names(), Names{""});
    EXPECT_EQ(fs::file_size(file), 52'428'801u);

    fs::resize_file(file, 52'428'800);
    appendToLogFile(file, LineViews{"first of the new file\n"});
    EXPECT_EQ(names(), (Names{"", ".1"}));
    EXPECT_EQ(contentOf(file), "first of the new file\n");
    EXPECT_EQ(fs::file_size(numbered(1)), 52'428'800u);
}

TEST_F(LogFile, rotatesBetweenTheLinesThatAreWrittenTogether)
{
    makeSparse(52'428'800 - 4);

    appendToLogFile(file, LineViews{"old\n", "new\n", "er\n"});

    EXPECT_EQ(fs::file_size(numbered(1)), 52'428'800u);
    EXPECT_EQ(contentOf(file), "new\ner\n");

    makeSparse(52'428'800 - 3);
    appendToLogFile(file, LineViews{"old\n", "new\n"});
    EXPECT_EQ(fs::file_size(numbered(1)), 52'428'801u);
    EXPECT_EQ(contentOf(file), "new\n");
}

TEST_F(LogFile, losesTheOldestOfFiveAndMovesTheOthersOn)
{
    for (int number = 1; number <= 5; ++number)
        write(numbered(number), "was " + std::to_string(number));
    makeSparse(logFileLimit);

    appendToLogFile(file, LineViews{"new\n"});

    EXPECT_EQ(names(), (Names{"", ".1", ".2", ".3", ".4", ".5"}));
    EXPECT_EQ(contentOf(file), "new\n");
    EXPECT_EQ(fs::file_size(numbered(1)), logFileLimit);
    EXPECT_EQ(contentOf(numbered(2)), "was 1");
    EXPECT_EQ(contentOf(numbered(3)), "was 2");
    EXPECT_EQ(contentOf(numbered(4)), "was 3");
    EXPECT_EQ(contentOf(numbered(5)), "was 4");
}

TEST_F(LogFile, movesOnlyTheNumbersThatThereAre)
{
    write(numbered(2), "was 2");
    write(numbered(4), "was 4");
    makeSparse(logFileLimit);

    rotateLogFileIfDue(file);

    EXPECT_EQ(names(), (Names{".1", ".3", ".5"}));
    EXPECT_EQ(contentOf(numbered(3)), "was 2");
    EXPECT_EQ(contentOf(numbered(5)), "was 4");
}

TEST_F(LogFile, goesOnWhenAMoveFailsAndOverwritesNothing)
{
    // A folder with something in it cannot be removed, so number 4 has nowhere to go.
    fs::create_directories(numbered(5) / "kept");
    for (int number = 1; number <= 4; ++number)
        write(numbered(number), "was " + std::to_string(number));
    makeSparse(logFileLimit);

    appendToLogFile(file, LineViews{"new\n"});

    for (int number = 1; number <= 4; ++number)
        EXPECT_EQ(contentOf(numbered(number)), "was " + std::to_string(number));
    EXPECT_EQ(fs::file_size(file), logFileLimit + 4);

    // A gap lets those below it move on, and the current file with them.
    fs::remove(numbered(3));
    appendToLogFile(file, LineViews{"newer\n"});
    EXPECT_EQ(contentOf(file), "newer\n");
    EXPECT_EQ(fs::file_size(numbered(1)), logFileLimit + 4);
    EXPECT_EQ(contentOf(numbered(2)), "was 1");
    EXPECT_EQ(contentOf(numbered(3)), "was 2");
    EXPECT_EQ(contentOf(numbered(4)), "was 4");
}

TEST_F(LogFile, isLeftAloneByARotationThatIsNotDue)
{
    rotateLogFileIfDue(file);
    EXPECT_EQ(names(), Names{});

    write(file, "short");
    write(numbered(1), "was 1");
    rotateLogFileIfDue(file);
    EXPECT_EQ(names(), (Names{"", ".1"}));
    EXPECT_EQ(contentOf(file), "short");
}

TEST_F(LogFile, mayBeRemovedOrEmptiedWhileTheProgramRuns)
{
    appendToLogFile(file, LineViews{"one\n"});
    fs::resize_file(file, 0);
    appendToLogFile(file, LineViews{"two\n"});
    EXPECT_EQ(contentOf(file), "two\n");

    fs::remove(file);
    appendToLogFile(file, LineViews{"three\n"});
    EXPECT_EQ(contentOf(file), "three\n");
}

TEST_F(LogFile, losesItsLinesInSilenceWhereItCannotBe)
{
    appendToLogFile(folder.path() / "missing" / "x.log", LineViews{"lost\n", "lost\n"});
    appendToLogFile("/proc/brindlex.log", LineViews{"lost\n"});
    appendToLogFile("/dev/full", LineViews{"lost\n"});
    fs::create_directory(file);
    appendToLogFile(file, LineViews{"lost\n"});
    EXPECT_EQ(names(), Names{""});

    const auto pipe = folder.path() / (fileName + "pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    appendToLogFile(pipe, LineViews{"lost\n"});
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(LogFile, goesOnWithAWholeLineWhenTheDiskHasSpaceAgain)
{
    const auto child = ::fork();
    if (child == 0) {
        ::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{8, RLIM_INFINITY};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const std::string_view together = "whole\nhalf\nlost\n";
        appendToLogFile(
            file, LineViews{together.substr(0, 6), together.substr(6, 5), together.substr(11)});
        appendToLogFile(file, LineViews{"lost too\n"});
        limit.rlim_cur = RLIM_INFINITY;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        appendToLogFile(file, LineViews{"later\n"});
        ::_exit(0);
    }
    int status = -1;
    ::waitpid(child, &status, 0);

    EXPECT_EQ(status, 0);
    EXPECT_EQ(contentOf(file), "whole\nlater\n");
}

} // namespace
} // namespace brindlex
