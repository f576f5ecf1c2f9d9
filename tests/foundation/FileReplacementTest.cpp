#include "foundation/FileReplacement.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using Replaced = Result<Done, FileProblem>;
using Read = Result<std::optional<std::string>, FileProblem>;
using Names = std::vector<std::string>;

constexpr std::size_t oneMebibyte = 1 << 20;

fs::perms permissionsOf(const fs::path& file) { return fs::status(file).permissions(); }

Names namesIn(const fs::path& folder)
{
    Names names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// Runs the action in a child of its own and answers its exit status; 0 when the action answered
/// true.
template <typename Action>
int inChild(Action action)
{
    const auto child = ::fork();
    if (child == 0)
        ::_exit(action() ? 0 : 1);
    int status = -1;
    ::waitpid(child, &status, 0);
    return status;
}

class FileReplacement : public testing::Test {
protected:
    TemporaryFolder folder;
    fs::path file = folder.path() / "config.json";
};

TEST_F(FileReplacement, makesANewFileThatOnlyTheUserMayRead)
{
    EXPECT_EQ(replaceFile(file, "content"), Replaced(Done{}));

    EXPECT_EQ(contentOf(file), "content");
    EXPECT_EQ(permissionsOf(file), fs::perms(0600));
    EXPECT_EQ(namesIn(folder.path()), Names{"config.json"});
}

TEST_F(FileReplacement, givesANewFileTheAskedPermissionsWhateverTheMask)
{
    const auto before = ::umask(0777);
    const auto replaced = replaceFile(file, "x", fs::perms(0754));
    ::umask(before);

    EXPECT_TRUE(replaced);
    EXPECT_EQ(permissionsOf(file), fs::perms(0754));
}

TEST_F(FileReplacement, keepsThePermissionsOfTheOldFile)
{
    for (const auto permissions : {fs::perms(0644), fs::perms(0400), fs::perms(0755)}) {
        write(file, "old");
        fs::permissions(file, permissions);

        EXPECT_TRUE(replaceFile(file, "new", fs::perms(0600)));

        EXPECT_EQ(permissionsOf(file), permissions);
        EXPECT_EQ(contentOf(file), "new");
        fs::remove(file);
    }
}

TEST_F(FileReplacement, makesAnotherFileAndLeavesTheOldOneToWhoHasItOpen)
{
    write(file, "old");
    const int reader = ::open(file.c_str(), O_RDONLY);

    EXPECT_TRUE(replaceFile(file, "new and longer"));

    char bytes[16] = {};
    EXPECT_EQ(::read(reader, bytes, sizeof bytes), 3);
    EXPECT_STREQ(bytes, "old");
    ::close(reader);
}

TEST_F(FileReplacement, takesAnyBytes)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    for (const auto& content : {std::string(), bytes, std::string(3 * oneMebibyte, '\xFF')}) {
        EXPECT_TRUE(replaceFile(file, content));
        EXPECT_EQ(readFile(file, 4 * oneMebibyte), Read(content));
    }
}

TEST_F(FileReplacement, takesTheLongestNameThatTheSystemTakes)
{
    const auto longName = folder.path() / std::string(255, 'n');
    EXPECT_TRUE(replaceFile(longName, "content"));
    EXPECT_EQ(contentOf(longName), "content");
    EXPECT_EQ(namesIn(folder.path()), Names{std::string(255, 'n')});

    const auto tooLong = folder.path() / std::string(256, 'n');
    EXPECT_EQ(replaceFile(tooLong, "content"), fail(FileProblem{tooLong, "File name too long"}));
}

TEST_F(FileReplacement, takesANameWithoutAFolder)
{
    const auto before = fs::current_path();
    fs::current_path(folder.path());
    const auto replaced = replaceFile("bare", "content");
    fs::current_path(before);

    EXPECT_TRUE(replaced);
    EXPECT_EQ(contentOf(folder.path() / "bare"), "content");
}

TEST_F(FileReplacement, replacesTheFileThatALinkLeadsTo)
{
    fs::create_directory(folder.path() / "elsewhere");
    const auto target = folder.path() / "elsewhere" / "real.json";
    write(target, "old");
    fs::create_symlink("elsewhere/real.json", folder.path() / "second");
    fs::create_symlink(folder.path() / "second", file);

    EXPECT_TRUE(replaceFile(file, "new"));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "second"));
    EXPECT_EQ(contentOf(target), "new");
    EXPECT_EQ(namesIn(folder.path() / "elsewhere"), Names{"real.json"});
}

TEST_F(FileReplacement, makesTheFileThatADanglingLinkLeadsTo)
{
    fs::create_symlink("missing.json", file);

    EXPECT_TRUE(replaceFile(file, "new"));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(contentOf(folder.path() / "missing.json"), "new");
}

TEST_F(FileReplacement, refusesLinksInACircle)
{
    fs::create_symlink("config.json", folder.path() / "other");
    fs::create_symlink("other", file);

    EXPECT_EQ(replaceFile(file, "new"), fail(FileProblem{file, "Is not a regular file"}));
    EXPECT_EQ(namesIn(folder.path()), (Names{"config.json", "other"}));
}

TEST_F(FileReplacement, refusesWhatIsNotARegularFile)
{
    const auto refusal = [](const fs::path& path) {
        return Replaced(fail(FileProblem{path, "Is not a regular file"}));
    };
    EXPECT_EQ(replaceFile(folder.path(), "x"), refusal(folder.path()));
    EXPECT_EQ(replaceFile("/dev/full", "x"), refusal("/dev/full"));

    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(replaceFile(file, "x"), refusal(file));
    EXPECT_TRUE(fs::is_fifo(file));
}

TEST_F(FileReplacement, namesThePathAndTheSystemsWordsOfAFailure)
{
    write(file, "a file");
    const auto below = file / "below.json";
    EXPECT_EQ(replaceFile(below, "x"), fail(FileProblem{below, "Not a directory"}));

    const auto nowhere = folder.path() / "missing" / "x.json";
    EXPECT_EQ(replaceFile(nowhere, "x"), fail(FileProblem{nowhere, "No such file or directory"}));

    const auto replaced = replaceFile("/proc/brindlex.json", "x");
    ASSERT_FALSE(replaced);
    EXPECT_EQ(replaced.error().path, "/proc/brindlex.json");
    EXPECT_NE(replaced.error().reason, "");
}

TEST_F(FileReplacement, leavesTheOldFileWhenTheDiskIsFull)
{
    write(file, "old");

    const int status = inChild([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return replaceFile(file, std::string(oneMebibyte, 'n'))
            == Replaced(fail(FileProblem{file, "File too large"}));
    });

    EXPECT_EQ(status, 0);
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_EQ(namesIn(folder.path()), Names{"config.json"});
}

TEST_F(FileReplacement, leavesNoNewFileWhenTheDiskIsFull)
{
    const int status = inChild([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{0, 0};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return !replaceFile(file, "new");
    });

    EXPECT_EQ(status, 0);
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

class FileReading : public FileReplacement { };

TEST_F(FileReading, answersNothingForAMissingFile)
{
    EXPECT_EQ(readFile(file, 10), Read(std::nullopt));

    fs::create_symlink("missing", folder.path() / "dangling");
    EXPECT_EQ(readFile(folder.path() / "dangling", 10), Read(std::nullopt));
}

TEST_F(FileReading, takesUpToTheLimitAndNoByteMore)
{
    write(file, "12345");

    EXPECT_EQ(readFile(file, 5), Read("12345"));
    EXPECT_EQ(readFile(file, 4), fail(FileProblem{file, "Is larger than 4 bytes"}));
    EXPECT_EQ(readFile(file, 0), fail(FileProblem{file, "Is larger than 0 bytes"}));
    EXPECT_EQ(readFile(file, static_cast<std::size_t>(-1)), Read("12345"));

    write(file, "");
    EXPECT_EQ(readFile(file, 0), Read(""));
}

TEST_F(FileReading, readsFilesWhoseSizeTheSystemDoesNotKnow)
{
    const auto status = readFile("/proc/self/status", oneMebibyte);

    ASSERT_TRUE(status);
    EXPECT_EQ((*status)->substr(0, 5), "Name:");
    EXPECT_EQ(readFile("/proc/self/status", 20),
        fail(FileProblem{"/proc/self/status", "Is larger than 20 bytes"}));
}

TEST_F(FileReading, refusesFoldersDevicesAndPipesWithoutWaiting)
{
    const auto refusal = [](const fs::path& path) {
        return Read(fail(FileProblem{path, "Is not a regular file"}));
    };
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);

    EXPECT_EQ(readFile(file, 10), refusal(file));
    EXPECT_EQ(readFile(folder.path(), 10), refusal(folder.path()));
    EXPECT_EQ(readFile("/dev/zero", 10), refusal("/dev/zero"));
}

TEST_F(FileReading, namesThePathAndTheSystemsWordsOfAFailure)
{
    write(file, "a file");
    EXPECT_EQ(readFile(file / "below", 10), fail(FileProblem{file / "below", "Not a directory"}));

    const auto socketPath = folder.path() / "socket";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socketPath.string().copy(address.sun_path, sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(readFile(socketPath, 10), fail(FileProblem{socketPath, "No such device or address"}));
    ::close(socket);
}

} // namespace
} // namespace brindlex
