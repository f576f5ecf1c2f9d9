#include "clipboard/FilePreview.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

namespace brindlex {
namespace {

struct FilePreviewTest : testing::Test {
    std::filesystem::path write(const std::string& bytes) const
    {
        const auto file = folder.path() / "file";
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    TemporaryFolder folder;
};

TEST_F(FilePreviewTest, isTheWholeOfASmallText)
{
    EXPECT_EQ(filePreview(write("one\nÄther 你好\n")),
        FilePreview::Any(FilePreview::Text{"one\nÄther 你好\n"}));
}

TEST_F(FilePreviewTest, isTheFirst64KiBOfALargeText)
{
    EXPECT_EQ(filePreview(write(std::string(65'536, 'a') + "b")),
        FilePreview::Any(FilePreview::Text{std::string(65'536, 'a')}));
}

TEST_F(FilePreviewTest, endsBeforeACharacterThatIsCut)
{
    EXPECT_EQ(filePreview(write(std::string(65'534, 'a') + "你")),
        FilePreview::Any(FilePreview::Text{std::string(65'534, 'a')}));
    EXPECT_EQ(filePreview(write(std::string(65'533, 'a') + "😀")),
        FilePreview::Any(FilePreview::Text{std::string(65'533, 'a')}));
}

TEST_F(FilePreviewTest, isNoTextOfWhatIsNone)
{
    EXPECT_EQ(filePreview(write("")), FilePreview::Any(FilePreview::Other{}));
    EXPECT_EQ(filePreview(write(std::string("a\0b", 3))), FilePreview::Any(FilePreview::Other{}));
    EXPECT_EQ(filePreview(write("caf\xE9")), FilePreview::Any(FilePreview::Other{}));
    EXPECT_EQ(filePreview(write("\xE9" + std::string(70'000, 'a'))),
        FilePreview::Any(FilePreview::Other{}));
}

TEST_F(FilePreviewTest, countsTheEntriesOfAFolder)
{
    EXPECT_EQ(filePreview(folder.path()), FilePreview::Any(FilePreview::Folder{0}));
    write("text");
    std::filesystem::create_directory(folder.path() / "inner");
    EXPECT_EQ(filePreview(folder.path()), FilePreview::Any(FilePreview::Folder{2}));
}

TEST_F(FilePreviewTest, doesNotWaitForAPipe)
{
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(filePreview(pipe), FilePreview::Any(FilePreview::Other{}));
}

TEST_F(FilePreviewTest, isNothingOfWhatIsNotThereOrLeadsInACircle)
{
    EXPECT_EQ(filePreview(folder.path() / "none"), FilePreview::Any(FilePreview::Other{}));
    const auto link = folder.path() / "link";
    std::filesystem::create_symlink(link, link);
    EXPECT_EQ(filePreview(link), FilePreview::Any(FilePreview::Other{}));
}

} // namespace
} // namespace brindlex
