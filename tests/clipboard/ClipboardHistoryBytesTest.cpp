#include "clipboard/ClipboardHistoryBytes.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class ClipboardHistoryBytesTest : public testing::Test {
protected:
    std::optional<std::uintmax_t> bytes() const { return clipboardHistoryBytes(index, blobs); }

    TemporaryFolder folder;
    const std::filesystem::path index = folder.path() / "index.json";
    const std::filesystem::path blobs = folder.path() / "blobs";
};

TEST_F(ClipboardHistoryBytesTest, areThoseOfTheIndexAndOfAllBlobs)
{
    std::filesystem::create_directory(blobs);
    write(index, std::string(10, 'x'));
    write(blobs / "one", std::string(200, 'x'));
    write(blobs / "two", std::string(3'000, 'x'));
    write(blobs / "empty", "");
    EXPECT_EQ(bytes(), 3'210U);
}

TEST_F(ClipboardHistoryBytesTest, areNoneOfWhatIsMissing)
{
    EXPECT_EQ(bytes(), 0U);
    write(index, "ten bytes.");
    EXPECT_EQ(bytes(), 10U);
    std::filesystem::remove(index);
    std::filesystem::create_directory(blobs);
    write(blobs / "blob", "three");
    EXPECT_EQ(bytes(), 5U);
}

TEST_F(ClipboardHistoryBytesTest, areNoneOfWhatLeadsElsewhereOrIsNoFile)
{
    std::filesystem::create_directories(blobs / "folder");
    write(blobs / "folder" / "file", "hidden");
    write(folder.path() / "elsewhere", "elsewhere");
    std::filesystem::create_symlink(folder.path() / "elsewhere", blobs / "link");
    std::filesystem::create_symlink(folder.path() / "elsewhere", index);
    std::filesystem::create_symlink(folder.path() / "nowhere", blobs / "dangling");
    EXPECT_EQ(bytes(), 0U);
}

TEST_F(ClipboardHistoryBytesTest, areUnknownWhereTheFolderCannotBeRead)
{
    write(index, "index");
    std::filesystem::create_symlink(blobs, blobs);
    EXPECT_EQ(bytes(), std::nullopt) << "a link to itself";
    std::filesystem::remove(blobs);
    write(blobs, "a file");
    EXPECT_EQ(bytes(), std::nullopt) << "no folder";
}

} // namespace
} // namespace brindlex
