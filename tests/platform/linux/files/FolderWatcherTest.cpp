#include "platform/linux/files/FolderWatcher.h"

#include "support/basics/TemporaryFolder.h"
#include "support/loops/QtLoop.h"

#include <gtest/gtest.h>

#include <set>

namespace brindlex {
namespace {

namespace files = std::filesystem;

class FolderWatcherTest : public testing::Test {
protected:
    bool isNotified(const std::string& name)
    {
        return loop.runUntil([&] { return notified.contains(name); });
    }

    QtLoop loop;
    TemporaryFolder folder;
    std::set<std::string> notified;
    FolderWatcher watcher{folder.path(), [this](const auto& name) { notified.insert(name); }};
};

TEST_F(FolderWatcherTest, notifiesOfFilesThatAreWrittenMovedAndRemoved)
{
    ASSERT_TRUE(watcher.isWatching());
    write(folder.path() / "written", "x");
    EXPECT_TRUE(isNotified("written"));
    files::rename(folder.path() / "written", folder.path() / "moved");
    EXPECT_TRUE(isNotified("moved"));
    notified.clear();
    files::permissions(folder.path() / "moved", files::perms::owner_read);
    EXPECT_TRUE(isNotified("moved"));
    notified.clear();
    files::remove(folder.path() / "moved");
    EXPECT_TRUE(isNotified("moved"));
}

TEST_F(FolderWatcherTest, isQuietAboutReading)
{
    write(folder.path() / "file", "x");
    ASSERT_TRUE(isNotified("file"));
    loop.runFor(0.01);
    notified.clear();
    EXPECT_EQ(contentOf(folder.path() / "file"), "x");
    write(folder.path() / "last", "x");
    ASSERT_TRUE(isNotified("last"));
    EXPECT_EQ(notified, std::set<std::string>{"last"});
}

TEST_F(FolderWatcherTest, notifiesThatTheFolderHasGone)
{
    files::remove_all(folder.path());
    EXPECT_TRUE(isNotified(""));
    EXPECT_TRUE(loop.runUntil([&] { return !watcher.isWatching(); }));
}

TEST_F(FolderWatcherTest, doesNotWatchWhatIsNoFolder)
{
    write(folder.path() / "file", "x");
    const auto handler = [](const std::string&) { FAIL(); };
    EXPECT_FALSE(FolderWatcher(folder.path() / "missing", handler).isWatching());
    EXPECT_FALSE(FolderWatcher(folder.path() / "file", handler).isWatching());
}

} // namespace
} // namespace brindlex
