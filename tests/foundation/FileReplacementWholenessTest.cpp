#include "foundation/FileReplacementFixture.h"
#include "support/basics/FileSizeLimit.h"

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

TEST_F(FileReplacement, leavesTheOldFileWhenTheDiskIsFull)
{
    write(file, "old");

    {
        const FileSizeLimit limit(4096);
        EXPECT_EQ(replaceFile(file, std::string(oneMebibyte, 'n')),
            fail(FileProblem{file, "File too large"}));
    }

    EXPECT_EQ(contentOf(file), "old");
    EXPECT_EQ(namesIn(folder.path()), Names{"config.json"});
}

TEST_F(FileReplacement, leavesNoNewFileWhenTheDiskIsFull)
{
    {
        const FileSizeLimit limit(0);
        const auto replaced = replaceFile(file, "new");
        EXPECT_EQ(replaced, fail(FileProblem{file, "File too large"}));
    }

    EXPECT_EQ(namesIn(folder.path()), Names{});
}

TEST_F(FileReplacement, usesUpTheTemporaryFileThatAKilledWriterLeft)
{
    write(folder.path() / ".config.json.tmp", "much longer remains of another content");

    EXPECT_TRUE(replaceFile(file, "new"));

    EXPECT_EQ(contentOf(file), "new");
    EXPECT_EQ(namesIn(folder.path()), Names{"config.json"});
}

TEST_F(FileReplacement, leavesTheTemporaryFileOfAWriterThatIsAtWork)
{
    const auto temporary = folder.path() / ".config.json.tmp";
    write(temporary, "half");
    const int other = ::open(temporary.c_str(), O_WRONLY);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);

    EXPECT_TRUE(replaceFile(file, "new"));

    EXPECT_EQ(contentOf(file), "new");
    EXPECT_EQ(contentOf(temporary), "half");
    EXPECT_EQ(namesIn(folder.path()), (Names{".config.json.tmp", "config.json"}));
    ::close(other);
}

TEST_F(FileReplacement, writesThroughNoLinkThatStandsInTheTemporaryFilesPlace)
{
    const auto victim = folder.path() / "victim";
    write(victim, "precious");
    const auto temporary = folder.path() / ".config.json.tmp";

    fs::create_symlink("victim", temporary);
    EXPECT_TRUE(replaceFile(file, "one"));
    EXPECT_EQ(contentOf(victim), "precious");

    fs::remove(temporary);
    fs::create_hard_link(victim, temporary);
    EXPECT_TRUE(replaceFile(file, "two"));
    EXPECT_EQ(contentOf(victim), "precious");
    EXPECT_EQ(contentOf(file), "two");
}

TEST_F(FileReplacement, showsAReaderOnlyWholeFilesWhileManyReplaceIt)
{
    constexpr int writers = 4;
    constexpr int rounds = 20;
    write(file, std::string(oneMebibyte / 4, 'a'));

    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer)
        threads.emplace_back([&, writer] {
            const std::string content(oneMebibyte / 4, static_cast<char>('b' + writer));
            for (int round = 0; round < rounds; ++round)
                EXPECT_TRUE(replaceFile(file, content));
        });
    std::atomic<bool> isOver = false;
    std::thread reader([&] {
        while (!isOver) {
            const auto content = readFile(file, oneMebibyte);
            ASSERT_TRUE(content);
            ASSERT_EQ((*content)->size(), oneMebibyte / 4);
            ASSERT_EQ((*content)->find_first_not_of((*content)->front()), std::string::npos);
        }
    });
    for (auto& thread : threads)
        thread.join();
    isOver = true;
    reader.join();

    EXPECT_EQ(namesIn(folder.path()), Names{"config.json"});
}

TEST_F(FileReplacement, survivesBeingKilledAtAnyMoment)
{
    const std::string small(10'000, 'a');
    const std::string large(oneMebibyte, 'b');
    write(file, small);

    for (int kill = 0; kill < 60; ++kill) {
        const auto child = ::fork();
        if (child == 0)
            for (;;) {
                (void)!replaceFile(file, large);
                (void)!replaceFile(file, small);
            }
        // Not a wait for a state: every moment is as good as any other.
        ::usleep(static_cast<useconds_t>(kill * 173));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);

        const auto content = readFile(file, 2 * oneMebibyte);
        ASSERT_TRUE(content);
        ASSERT_TRUE(**content == small || **content == large) << (*content)->size();
        ASSERT_LE(namesIn(folder.path()).size(), 2u);
    }

    EXPECT_TRUE(replaceFile(file, "afterwards"));
    EXPECT_EQ(contentOf(file), "afterwards");
    EXPECT_EQ(namesIn(folder.path()), Names{"config.json"});
}

} // namespace
} // namespace brindlex
