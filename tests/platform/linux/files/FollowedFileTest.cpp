#include "platform/linux/files/FollowedFile.h"

#include "support/basics/TemporaryFolder.h"
#include "support/loops/QtLoop.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace brindlex {
namespace {

namespace files = std::filesystem;

class FollowedFileTest : public testing::Test {
protected:
    void follow()
    {
        followed.emplace(file, 10, [this](const std::string& content) { last = content; });
    }
    bool becomes(const std::string& content)
    {
        return loop.runUntil([&] { return last == content; });
    }

    QtLoop loop;
    TemporaryFolder home;
    const files::path folder = home.path() / "folder";
    const files::path file = folder / "file";
    std::string last = "none yet";
    std::optional<FollowedFile> followed;
};

TEST_F(FollowedFileTest, isReadAtOnceAndWheneverItChanges)
{
    files::create_directory(folder);
    write(file, "first");
    follow();
    EXPECT_EQ(last, "first");

    write(file, "second");
    EXPECT_TRUE(becomes("second"));
    write(folder / "other", "third");
    files::rename(folder / "other", file);
    EXPECT_TRUE(becomes("third"));
    files::remove(file);
    EXPECT_TRUE(becomes(""));
}

TEST_F(FollowedFileTest, mayComeLaterAndItsFolder)
{
    follow();
    EXPECT_EQ(last, "");

    files::create_directory(folder);
    write(file, "late");
    EXPECT_TRUE(becomes("late"));
    files::remove_all(folder);
    EXPECT_TRUE(becomes(""));
    files::create_directory(folder);
    write(file, "again");
    EXPECT_TRUE(becomes("again"));
}

TEST_F(FollowedFileTest, countsAsEmptyWhereItCannotBeRead)
{
    files::create_directory(folder);
    write(file, "ten bytes.");
    follow();
    EXPECT_EQ(last, "ten bytes.");
    write(file, "many bytes.");
    EXPECT_TRUE(becomes(""));
    files::remove(file);

    last = "none yet";
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_TRUE(becomes(""));
    files::remove(file);
    last = "none yet";
    files::create_directory(file);
    EXPECT_TRUE(becomes(""));
}

} // namespace
} // namespace brindlex
