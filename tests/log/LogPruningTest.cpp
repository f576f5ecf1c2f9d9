#include "log/LogPruning.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

constexpr Date pruningTime = Date::fromUnixTime(1'794'795'385);
constexpr Seconds thirtyDays = 2'592'000;

class LogPruningTest : public testing::Test {
protected:
    void make(const std::string& name, Seconds age) const
    {
        write(folder.path() / name, "content");
        setAge(name, age);
    }

    void setAge(const std::string& name, Seconds age) const
    {
        const std::chrono::duration<Seconds> sinceEpoch((pruningTime - age).unixTime());
        const std::chrono::sys_time<std::chrono::nanoseconds> time(
            std::chrono::duration_cast<std::chrono::nanoseconds>(sinceEpoch));
        fs::last_write_time(folder.path() / name, std::chrono::file_clock::from_sys(time));
    }

    Names names() const { return namesIn(folder.path()); }

    void prune(Date at)
    {
        pruning.prune(
            [this] {
                ++asked;
                return std::optional(folder.path());
            },
            at);
    }

    TemporaryFolder folder;
    LogPruning pruning;
    int asked = 0;
};

TEST_F(LogPruningTest, removesWhatIsOlderThanThirtyDaysAndNothingElse)
{
    make("exactly.log", thirtyDays);
    make("older.log", thirtyDays + 1);
    make("younger.log", thirtyDays - 1);
    make("future.log", -1000);

    prune(pruningTime);

    EXPECT_EQ(names(), (Names{"exactly.log", "future.log", "younger.log"}));
}

TEST_F(LogPruningTest, treatsCurrentAndRotatedFilesAlikeAndLeavesAllOthers)
{
    for (const auto* name : {"com.brindlex.Brindlex.app.log", "com.brindlex.Brindlex.app.log.3",
             "com.brindlex.Brindlex.finder.log.12", ".log", "notes.txt", "app.log.", "app.log.x",
             "app.log.3x", "app.log.3.gz", "app.LOG", "applog", "3"})
        make(name, 2 * thirtyDays);

    prune(pruningTime);

    EXPECT_EQ(names(),
        (Names{"3", "app.LOG", "app.log.", "app.log.3.gz", "app.log.3x", "app.log.x", "applog",
            "notes.txt"}));
}

TEST_F(LogPruningTest, leavesAFolderThatHasANameLikeALog)
{
    fs::create_directories(folder.path() / "old.log" / "inside");
    setAge("old.log", 2 * thirtyDays);
    fs::create_directory(folder.path() / "sub");
    make("sub/deep.log", 2 * thirtyDays);

    prune(pruningTime);

    EXPECT_EQ(names(), (Names{"old.log", "sub"}));
    EXPECT_TRUE(fs::exists(folder.path() / "sub" / "deep.log"));
}

TEST_F(LogPruningTest, happensOnceWithinAnHour)
{
    prune(pruningTime);
    make("old.log", thirtyDays + 1);

    prune(pruningTime);
    prune(pruningTime + 3599.999);
    EXPECT_EQ(names(), Names{"old.log"});
    EXPECT_EQ(asked, 1);

    prune(pruningTime + 3600.0);
    EXPECT_EQ(names(), Names{});
    EXPECT_EQ(asked, 2);
}

TEST_F(LogPruningTest, waitsWhenTheClockWasSetBack)
{
    prune(pruningTime);
    prune(pruningTime - 86'400.0);
    prune(pruningTime - 86'400.0 + 3600.0);
    EXPECT_EQ(asked, 1);

    prune(pruningTime + 3600.0);
    EXPECT_EQ(asked, 2);
}

TEST_F(LogPruningTest, countsAsDoneWithoutAFolder)
{
    make("old.log", thirtyDays + 1);
    pruning.prune([] { return std::nullopt; }, pruningTime);

    prune(pruningTime + 3599.0);
    EXPECT_EQ(asked, 0);
    prune(pruningTime + 3600.0);
    EXPECT_EQ(names(), Names{});
}

TEST_F(LogPruningTest, countsAsDoneWhenTheFolderCannotBeRead)
{
    make("file", 0);
    pruning.prune([&] { return std::optional(folder.path() / "missing"); }, pruningTime);
    prune(pruningTime + 3599.0);
    EXPECT_EQ(asked, 0);

    LogPruning other;
    other.prune([&] { return std::optional(folder.path() / "file"); }, pruningTime);
    EXPECT_EQ(names(), Names{"file"});
}

TEST(LogFileName, endsInLogOrInLogAndANumber)
{
    for (const auto* name : {".log", "a.log", "a.log.1", "a.log.0123456789", "a.log.log.5"})
        EXPECT_TRUE(isLogFileName(name)) << name;
    for (const auto* name :
        {"", "log", "a.log.", "a.log.1.", "a.log1", "a.logs.1", "alog.1", "1", "a.1.txt"})
        EXPECT_FALSE(isLogFileName(name)) << name;
}

} // namespace
} // namespace brindlex
