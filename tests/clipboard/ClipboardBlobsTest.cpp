#include "clipboard/ClipboardBlobs.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

struct ClipboardBlobsTest : testing::Test {
    TemporaryFolder temporary;
    ClipboardBlobs blobs{temporary.path() / "history/blobs"};
};

TEST_F(ClipboardBlobsTest, writesAnyBytes)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_TRUE(blobs.write("a.png", bytes));
    EXPECT_TRUE(blobs.write("empty", ""));
    EXPECT_EQ(contentOf(*blobs.file("a.png")), bytes);
    EXPECT_EQ(fs::file_size(*blobs.file("empty")), 0U);
}

TEST_F(ClipboardBlobsTest, neverReplacesWhatIsThere)
{
    ASSERT_TRUE(blobs.write("a.png", "first"));
    EXPECT_EQ(
        blobs.write("a.png", "second"), fail(FileProblem{blobs.folder() / "a.png", "File exists"}));
    write(temporary.path() / "elsewhere", "content");
    fs::create_symlink(temporary.path() / "elsewhere", blobs.folder() / "link.png");
    EXPECT_FALSE(blobs.write("link.png", "bytes"));
    EXPECT_EQ(contentOf(*blobs.file("a.png")), "first");
    EXPECT_EQ(contentOf(temporary.path() / "elsewhere"), "content");
}

TEST_F(ClipboardBlobsTest, stayInTheirFolder)
{
    write(temporary.path() / "precious", "content");
    for (const auto& name :
        {std::string(), std::string("."), std::string(".."), std::string("../../precious"),
            std::string("/etc/passwd"), std::string("a/b"), std::string("a\0b", 3)}) {
        EXPECT_FALSE(isBlobName(name)) << name;
        EXPECT_EQ(blobs.file(name), std::nullopt) << name;
        EXPECT_FALSE(blobs.write(name, "bytes")) << name;
        blobs.remove(name);
    }
    for (const char* name : {"a", "...", "..a", ".hidden", "a b.png", "ä\\"})
        EXPECT_TRUE(isBlobName(name)) << name;
    EXPECT_EQ(contentOf(temporary.path() / "precious"), "content");
}

TEST_F(ClipboardBlobsTest, removesTheLinkAndNotWhatItLeadsTo)
{
    write(temporary.path() / "elsewhere", "content");
    fs::create_directories(blobs.folder());
    fs::create_symlink(temporary.path() / "elsewhere", blobs.folder() / "link.png");
    blobs.remove("link.png");
    EXPECT_EQ(namesIn(blobs.folder()), Names{});
    EXPECT_EQ(contentOf(temporary.path() / "elsewhere"), "content");
}

TEST_F(ClipboardBlobsTest, removesAllButSome)
{
    for (const char* name : {"a", "b", "c", "d"})
        ASSERT_TRUE(blobs.write(name, name));
    blobs.removeAllBut({"b", "d", "missing"});
    EXPECT_EQ(namesIn(blobs.folder()), (Names{"b", "d"}));
}

TEST_F(ClipboardBlobsTest, passesOverWhatCannotBeRemoved)
{
    blobs.remove("missing");
    blobs.removeAllBut({});
    EXPECT_FALSE(fs::exists(blobs.folder()));
}

} // namespace
} // namespace brindlex
