#include "platform/linux/preferences/FolderWatcher.h"

#include "support/basics/TemporaryFolder.h"
#include "support/loops/QtLoop.h"

#include <gtest/gtest.h>

#include <set>

namespace brindlex {
namespace {

namespace files = std::filesystem;

class FolderWatcherTest : public testing::Test {
protected:
    bool isTold(const std::string& name)
    {
        return loop.runUntil([&] { return told.contains(name); });
    }

    QtLoop loop;
    TemporaryFolder folder;
    std::set<std::string> told;
    FolderWatcher watcher{folder.path(), [this](const auto& name) { told.insert(name); }};
};

TEST_F(FolderWatcherTest, tellsOfFilesThatAreWrittenMovedAndRemoved)
{
    ASSERT_TRUE(watcher.isWatching());
    write(folder.path() / "written", "x");
    EXPECT_TRUE(isTold("written"));
    files::rename(folder.path() / "written", folder.path() / "moved");
    EXPECT_TRUE(isTold("moved"));
    told.clear();
    files::permissions(folder.path() / "moved", files::perms::owner_read);
    EXPECT_TRUE(isTold("moved"));
    told.clear();
    files::remove(folder.path() / "moved");
    EXPECT_TRUE(isTold("moved"));
}

TEST_F(FolderWatcherTest, isQuietAboutReading)
{
    write(folder.path() / "file", "x");
    ASSERT_TRUE(isTold("file"));
    loop.runFor(0.01);
    told.clear();
    EXPECT_EQ(contentOf(folder.path() / "file"), "x");
    write(folder.path() / "last", "x");
    ASSERT_TRUE(isTold("last"));
    EXPECT_EQ(told, std::set<std::string>{"last"});
}

TEST_F(FolderWatcherTest, tellsThatTheFolderHasGone)
{
    files::remove_all(folder.path());
    EXPECT_TRUE(isTold(""));
    EXPECT_TRUE(loop.runUntil([&] { return !watcher.isWatching(); }));
}

TEST_F(FolderWatcherTest, doesNotWatchWhatIsNoFolder)
{
    write(folder.path() / "file", "x");
    const auto tell = [](const std::string&) { FAIL(); };
    EXPECT_FALSE(FolderWatcher(folder.path() / "missing", tell).isWatching());
    EXPECT_FALSE(FolderWatcher(folder.path() / "file", tell).isWatching());
}

} // namespace
} // namespace brindlex
