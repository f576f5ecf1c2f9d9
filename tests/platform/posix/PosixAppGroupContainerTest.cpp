#include "platform/posix/PosixAppGroupContainer.h"

#include "support/basics/OrdinaryUser.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

class PosixAppGroupContainerTest : public testing::Test {
protected:
    void expectRefusal(const std::string& words)
    {
        for (int time = 0; time < 3; ++time)
            EXPECT_EQ(container.appGroupContainerURL(), std::nullopt);
        EXPECT_EQ(log.takeLines(),
            Lines{"ERROR [lifecycle] App Group container refused: " + path.string() + " " + words});
    }

    TemporaryFolder folder;
    RecordedLog log;
    fs::path path = folder.path() / "share" / "group";
    PosixAppGroupContainer container{path};
};

TEST_F(PosixAppGroupContainerTest, isMadeForTheUserAlone)
{
    const auto before = ::umask(0);
    const auto made = container.appGroupContainerURL();
    ::umask(before);

    EXPECT_EQ(made, path);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0700));
    EXPECT_EQ(fs::status(path.parent_path()).permissions(), fs::perms(0700));
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(PosixAppGroupContainerTest, mayBeReadByOthersIfTheUserWantsSo)
{
    fs::create_directories(path);
    fs::permissions(path, fs::perms(0755));

    EXPECT_EQ(container.appGroupContainerURL(), path);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0755));
}

TEST_F(PosixAppGroupContainerTest, mayBeALinkToAFolderOfTheUser)
{
    fs::create_directories(folder.path() / "elsewhere");
    fs::create_directory(path.parent_path());
    fs::create_directory_symlink(folder.path() / "elsewhere", path);
    fs::permissions(folder.path() / "elsewhere", fs::perms(0700));

    EXPECT_EQ(container.appGroupContainerURL(), path);
}

TEST_F(PosixAppGroupContainerTest, isRefusedWhenOthersMayWriteToIt)
{
    fs::create_directories(path);
    for (const auto permissions : {fs::perms(0720), fs::perms(0702), fs::perms(01777)}) {
        fs::permissions(path, permissions);
        EXPECT_EQ(container.appGroupContainerURL(), std::nullopt);
    }
    expectRefusal("may be written to by others");
}

TEST_F(PosixAppGroupContainerTest, isRefusedWhenItIsNoFolder)
{
    fs::create_directory(path.parent_path());
    write(path, "");
    expectRefusal("is not a folder");
}

TEST_F(PosixAppGroupContainerTest, isRefusedInTheSystemsWordsWhenItCannotBeHad)
{
    write(path.parent_path(), "");
    expectRefusal("cannot be had: Not a directory");
}

TEST_F(PosixAppGroupContainerTest, saysWhyItCannotBeMade)
{
    PosixAppGroupContainer impossible("/proc/brindlex/container");

    EXPECT_EQ(impossible.appGroupContainerURL(), std::nullopt);

    EXPECT_EQ(log.lines(),
        Lines{"ERROR [lifecycle] App Group container refused: /proc/brindlex/container cannot be "
              "had: No such file or directory"});
}

TEST_F(PosixAppGroupContainerTest, isRefusedWhenItBelongsToAnotherUser)
{
    // Only the administrator can give a folder away; for anybody else the root's own serves.
    if (::geteuid() == 0) {
        fs::create_directories(path);
        ASSERT_EQ(::chown(path.c_str(), 12345, static_cast<gid_t>(-1)), 0);
        expectRefusal("belongs to another user");
    } else {
        EXPECT_EQ(PosixAppGroupContainer("/usr").appGroupContainerURL(), std::nullopt);
        EXPECT_EQ(log.lines(),
            Lines{"ERROR [lifecycle] App Group container refused: /usr belongs to another user"});
    }
}

TEST_F(PosixAppGroupContainerTest, isHandedOutAndWarnedOfOnceWhenItMayOnlyBeRead)
{
    const OrdinaryUser user(folder.path());
    fs::create_directories(path);
    fs::permissions(path, fs::perms(0500));

    for (int time = 0; time < 3; ++time)
        EXPECT_EQ(container.appGroupContainerURL(), path);
    EXPECT_EQ(log.takeLines(),
        Lines{"WARN [lifecycle] App Group container cannot be written to: " + path.string()
            + ": Permission denied"});

    fs::permissions(path, fs::perms(0700));
    EXPECT_EQ(container.appGroupContainerURL(), path);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(PosixAppGroupContainerTest, logsEachKindOfProblemOnce)
{
    fs::create_directories(path);
    fs::permissions(path, fs::perms(0777));
    expectRefusal("may be written to by others");
    fs::remove(path);
    write(path, "");
    expectRefusal("is not a folder");
    fs::remove(path);
    fs::create_directory(path);
    fs::permissions(path, fs::perms(0777));

    EXPECT_EQ(container.appGroupContainerURL(), std::nullopt);
    EXPECT_EQ(log.lines(), Lines{});
    fs::permissions(path, fs::perms(0700));
    EXPECT_EQ(container.appGroupContainerURL(), path);
}

TEST_F(PosixAppGroupContainerTest, logsOnceForManyThreads)
{
    fs::create_directory(path.parent_path());
    write(path, "");
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.emplace_back([&] { EXPECT_EQ(container.appGroupContainerURL(), std::nullopt); });
    for (auto& thread : threads)
        thread.join();

    EXPECT_EQ(log.lines().size(), 1u);
}

/// A sink that asks the container, as the log's writer does.
class AskingSink : public LogSink {
public:
    explicit AskingSink(PosixAppGroupContainer& asked) : container(asked) { }
    void write(const LogCall&) override
    {
        ++calls;
        EXPECT_EQ(container.appGroupContainerURL(), std::nullopt);
    }
    void prune(Date) override { }
    std::optional<fs::path> fileURL(Log::Subsystem) override { return {}; }

    PosixAppGroupContainer& container;
    int calls = 0;
};

TEST_F(PosixAppGroupContainerTest, mayBeAskedByTheLogThatItWritesTo)
{
    fs::create_directory(path.parent_path());
    write(path, "");
    const auto sink = std::make_shared<AskingSink>(container);
    const auto before = Log::install(sink);
    EXPECT_EQ(container.appGroupContainerURL(), std::nullopt);
    Log::install(before);

    EXPECT_EQ(sink->calls, 1);
}

} // namespace
} // namespace brindlex
